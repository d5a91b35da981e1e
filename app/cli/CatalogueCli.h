// The subcommand catalogue: build makes a catalogue database from SQL text,
// check names the rows of one that the wizard would trip on.
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

class CatalogueCli {
public:
    explicit CatalogueCli(CLI::App& app);
    // The exit code when catalogue was parsed; -1 when it was not.
    int Run() const;

private:
    CLI::App* catalogue_;
    CLI::App* build_;
    CLI::App* check_;
    std::string out_, db_;
    std::vector<std::string> sql_;
};
