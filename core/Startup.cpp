#include "core/Startup.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "core/UnitFile.h"

namespace {

// Where the program's data files lie: the folder of the running executable,
// or the folder named by the environment variable TORVANE_APP_PATH when it is
// set and not empty.
std::string AppPath_Find() {
    if (const char* env = std::getenv("TORVANE_APP_PATH"); env != nullptr && *env != '\0') return env;
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return std::filesystem::current_path(ec).string();
    return exe.parent_path().string();
}

}  // namespace

void Main_Prepare(const std::string& commandLine) {
    if (!commandLine.empty()) {
        CommandFileGiven = 1;
        FileName = commandLine;
    }
    AppPath = AppPath_Find();
    Init_ItemCounts();
    Init_Templates();
    Unit_LoadOrDefaults();
    Disp_Reset();
}
