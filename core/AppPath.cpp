#include "core/AppPath.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

std::string AppPath_Find() {
    if (const char* env = std::getenv("TORVANE_APP_PATH"); env != nullptr && *env != '\0') return env;
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return std::filesystem::current_path(ec).string();
    return exe.parent_path().string();
}
