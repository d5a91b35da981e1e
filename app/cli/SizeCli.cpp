#include "app/cli/SizeCli.h"

#include <iostream>

#include "app/cli/CliOpen.h"
#include "app/cli/SizePrint.h"

SizeCli::SizeCli(CLI::App& app) {
    size_ = app.add_subcommand("size", "Open an application file and print its chain, pattern and sizing values");
    size_->add_option("FILE", file_, "the application file (.AP2)")->required();
    size_->add_flag("--json", json_, "print JSON, every number in base units");
}

int SizeCli::Run() const {
    if (!size_->parsed()) return -1;
    if (!Cli_Open(file_)) return 1;
    if (json_)
        Size_PrintJson(std::cout);
    else
        Size_PrintText(std::cout);
    return 0;
}
