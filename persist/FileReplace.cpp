#include "persist/FileReplace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <functional>

#include "base/ReadFile.h"

namespace {

// Every byte written; a write cut short by a signal is taken up again.
bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

// The mode the target has, or that of a new file for this user.
mode_t TargetMode(const std::string& path) {
    struct stat st {};
    if (::stat(path.c_str(), &st) == 0) return st.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Writes the target through a temporary file in its folder, renamed over it
// once fill has written everything to the descriptor it is given.
bool Replace_With(const std::string& path, const std::function<bool(int fd)>& fill) {
    std::string temp = path + ".XXXXXX";
    const int fd = ::mkstemp(temp.data());
    if (fd < 0) return false;
    const bool written = ::fchmod(fd, TargetMode(path)) == 0 && fill(fd) && ::fsync(fd) == 0;
    const bool closed = ::close(fd) == 0;
    if (written && closed && std::rename(temp.c_str(), path.c_str()) == 0) return true;
    std::remove(temp.c_str());
    return false;
}

// Every byte of the open file, in chunks, a read cut short by a signal taken up again.
bool CopyAll(int from, int to) {
    char chunk[65536];
    for (;;) {
        const ssize_t n = ::read(from, chunk, sizeof chunk);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return false;
        if (n == 0) return true;
        if (!WriteAll(to, std::string_view(chunk, static_cast<std::size_t>(n)))) return false;
    }
}

}  // namespace

bool File_Replace(const std::string& path, std::string_view bytes) {
    return Replace_With(path, [bytes](int fd) { return WriteAll(fd, bytes); });
}

bool File_CopyOver(const std::string& source, const std::string& target) {
    const int from = File_OpenRegular(source);
    if (from < 0) return false;
    const bool copied = Replace_With(target, [from](int fd) { return CopyAll(from, fd); });
    ::close(from);
    return copied;
}
