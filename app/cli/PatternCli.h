// The subcommand pattern: the operating pattern of an application file to
// and from a point table (CSV), as File > Import Pattern... and File > Export
// Pattern... do.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

class PatternCli {
public:
    explicit PatternCli(CLI::App& app);
    // The exit code when pattern was parsed; -1 when it was not.
    int Run() const;

private:
    CLI::App* import_;
    CLI::App* export_;
    std::string file_, table_, out_;
    bool intervals_ = false;
};
