#include "base/ReadFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

int File_OpenRegular(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) return -1;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return -1;
    }
    return fd;
}

bool File_ReadPrefix(const std::string& path, std::size_t limit, std::string& bytes) {
    bytes.clear();
    const int fd = File_OpenRegular(path);
    if (fd < 0) return false;
    // Room for the size the file says it has; a file that grows meanwhile, or
    // says 0 as some system files do, is read on to its end or the limit.
    struct stat st {};
    if (::fstat(fd, &st) == 0) bytes.reserve(std::min(static_cast<std::size_t>(st.st_size), limit));
    char chunk[16384];
    bool ok = true;
    while (bytes.size() < limit) {
        const ssize_t n = ::read(fd, chunk, std::min(sizeof chunk, limit - bytes.size()));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            ok = n == 0;
            break;
        }
        bytes.append(chunk, static_cast<std::size_t>(n));
    }
    ::close(fd);
    if (!ok) bytes.clear();
    return ok;
}

bool File_Readable(const std::string& path) {
    const int fd = File_OpenRegular(path);
    if (fd < 0) return false;
    ::close(fd);
    return true;
}
