// Opening an application file for a subcommand, as the program opens a file
// named on its command line.
#pragma once

#include <string>

// True when the file was loaded and calculated; otherwise tells so on
// standard error.
bool Cli_Open(const std::string& file);
