#include "app/cli/SizeCli.h"

#include <iostream>

#include "app/cli/SizePrint.h"
#include "commands/Activation.h"
#include "core/Startup.h"

SizeCli::SizeCli(CLI::App& app) {
    size_ = app.add_subcommand("size", "Open an application file and print its chain, pattern and sizing values");
    size_->add_option("FILE", file_, "the application file (.AP2)")->required();
    size_->add_flag("--json", json_, "print JSON, every number in base units");
}

int SizeCli::Run() const {
    if (!size_->parsed()) return -1;
    Main_Prepare(file_);
    if (!Main_Activate()) {
        std::cerr << "torvane-cli: " << file_ << " could not be loaded\n";
        return 1;
    }
    if (json_)
        Size_PrintJson(std::cout);
    else
        Size_PrintText(std::cout);
    return 0;
}
