// torvane-cli run as a separate process, with its AppPath given.
#pragma once

#include <string>

#include "tests/support/TestState.h"

struct CliRun {
    int code = -1;
    std::string out, err;
};

// Quotes a word for the shell.
std::string Quote(const std::string& s);

// Runs torvane-cli with the arguments (already quoted where needed) and the
// folder as its AppPath; the output is kept in that folder.
CliRun RunCli(const TempDir& dir, const std::string& args);
