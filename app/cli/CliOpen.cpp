#include "app/cli/CliOpen.h"

#include <iostream>

#include "commands/Activation.h"
#include "core/Startup.h"

bool Cli_Open(const std::string& file) {
    Main_Prepare(file);
    if (Main_Activate()) return true;
    std::cerr << "torvane-cli: " << file << " could not be loaded\n";
    return false;
}
