#include "tests/support/HostilePaths.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "tests/support/TestState.h"

std::string Path_Folder(const std::string& path) {
    std::filesystem::create_directory(path);
    return path;
}

std::string Path_Fifo(const std::string& path) {
    if (::mkfifo(path.c_str(), 0600) != 0) throw std::runtime_error("mkfifo failed");
    return path;
}

std::string Path_EndlessDevice(const std::string& path) {
    std::filesystem::create_symlink("/dev/zero", path);
    return path;
}

// /proc/self/mem is a regular file whose first page is never mapped: its read
// fails with an input/output error, whoever reads it, root included.
std::string Path_ReadFails(const std::string& path) {
    std::filesystem::create_symlink("/proc/self/mem", path);
    return path;
}

std::string Path_Huge(const std::string& path, const std::string& head) {
    WriteFile(path, head);
    if (::truncate(path.c_str(), 8LL << 30) != 0) throw std::runtime_error("truncate failed");
    return path;
}
