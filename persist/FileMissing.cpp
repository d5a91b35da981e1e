#include "persist/FileMissing.h"

#include <filesystem>
#include <fstream>

bool File_Missing(const std::string& path) {
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) return true;
    return !std::ifstream(path, std::ios::binary).is_open();
}
