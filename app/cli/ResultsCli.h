// The subcommand results: opens an application file as the window program
// does and writes its calculation results file.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

class ResultsCli {
public:
    explicit ResultsCli(CLI::App& app);
    // The exit code when results was parsed; -1 when it was not.
    int Run() const;

private:
    CLI::App* results_;
    std::string file_, out_;
};
