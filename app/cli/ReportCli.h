// The subcommands of the printed report: report writes the report of an
// application file as a PDF, series-list the judged motor list of a model
// group. With --objects both print instead, as JSON, every call the filling
// makes on the report engine, in order.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

class ReportCli {
public:
    explicit ReportCli(CLI::App& app);
    // The exit code of the subcommand that was parsed; -1 when none of these was.
    int Run() const;

private:
    int Run_Report() const;
    int Run_SeriesList() const;
    // The pages' date: --date, or today.
    std::string Date() const;

    CLI::App* report_;
    CLI::App* list_;
    std::string file_, out_, date_, series_, model_;
    bool cover_ = false, components_ = false, patterns_ = false, notes_ = false, objects_ = false;
};
