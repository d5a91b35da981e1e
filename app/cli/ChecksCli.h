// The subcommand checks: opens an application file as the program does and
// prints the engineering checks of its chosen motor and driver, the table
// that the "Engineering Checks" window shows, or JSON with every number in
// base units beside that table.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

class ChecksCli {
public:
    explicit ChecksCli(CLI::App& app);
    // The exit code when checks was parsed: 0, or 1 when the file could not
    // be loaded; -1 when it was not parsed.
    int Run() const;

private:
    CLI::App* checks_;
    std::string file_;
    bool json_ = false;
};
