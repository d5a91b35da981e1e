// The subcommands of the selection wizard: series lists the catalogue,
// judge prints the motor grid judged against a file, drivers the driver grid
// of a motor, select takes a motor and a driver on and saves the file, and
// recommend ranks the motor and driver pairs of the whole catalogue.
#pragma once

#include <CLI/CLI.hpp>

#include <cstddef>
#include <string>

#include "selection/MotorPage.h"

// Opens the file and the motor page, picks the series and the model group
// and judges its motors: 0, or the exit code when a name is unknown or the
// file cannot be read.
int Group_Judge(const std::string& file, const std::string& series, const std::string& model, MotorPage& page);

class SelectionCli {
public:
    explicit SelectionCli(CLI::App& app);
    // The exit code of the subcommand that was parsed; -1 when none of these was.
    int Run() const;

private:
    CLI::App* series_;
    CLI::App* judge_;
    CLI::App* drivers_;
    CLI::App* select_;
    CLI::App* recommend_;
    std::string file_, seriesName_, modelName_, motor_, driver_, modelText_, out_;
    std::size_t top_ = 10;
    bool json_ = false;
    bool includeFair_ = false;
};
