// The subcommand size: opens an application file as the program does with a
// file on its command line, and prints the chain, the pattern and the seven
// sizing values, as text or as JSON.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

class SizeCli {
public:
    explicit SizeCli(CLI::App& app);
    // The exit code when size was parsed: 0, or 1 when the file could not be
    // loaded; -1 when it was not parsed.
    int Run() const;

private:
    CLI::App* size_;
    std::string file_;
    bool json_ = false;
};
