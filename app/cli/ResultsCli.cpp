#include "app/cli/ResultsCli.h"

#include <iostream>

#include "core/Startup.h"
#include "persist/mdlFile.h"
#include "commands/ResultsCommand.h"

ResultsCli::ResultsCli(CLI::App& app) {
    results_ = app.add_subcommand("results", "Open an application file and write its calculation results file");
    results_->add_option("FILE", file_, "the application file (.AP2)")->required();
    results_->add_option("OUT", out_, "the results file to write, taken as given")->required();
}

int ResultsCli::Run() const {
    if (!results_->parsed()) return -1;
    Main_Prepare("");
    if (!File_Load(file_)) return 1;
    bool asked = false;
    const bool written = Results_Command([this, &asked](std::string& fileName) {
        fileName = out_;
        return asked = true;
    });
    if (!written && asked) std::cerr << "torvane-cli: the results file could not be written: " << out_ << '\n';
    return written ? 0 : 1;
}
