#include "base/ReadFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

// A descriptor of the regular file at path, or -1. The open does not wait
// for a writer, so a FIFO is refused instead of blocking.
int Open_Regular(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) return -1;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        return -1;
    }
    return fd;
}

}  // namespace

bool File_ReadPrefix(const std::string& path, std::size_t limit, std::string& bytes) {
    bytes.clear();
    const int fd = Open_Regular(path);
    if (fd < 0) return false;
    constexpr std::size_t kChunk = 65536;
    bool ok = true;
    while (bytes.size() < limit) {
        const std::size_t old = bytes.size();
        const std::size_t want = std::min(kChunk, limit - old);
        bytes.resize(old + want);
        const ssize_t n = ::read(fd, bytes.data() + old, want);
        if (n < 0 && errno == EINTR) {
            bytes.resize(old);
            continue;
        }
        bytes.resize(old + static_cast<std::size_t>(n > 0 ? n : 0));
        if (n <= 0) {
            ok = n == 0;
            break;
        }
    }
    ::close(fd);
    if (!ok) bytes.clear();
    return ok;
}

bool File_Readable(const std::string& path) {
    const int fd = Open_Regular(path);
    if (fd < 0) return false;
    ::close(fd);
    return true;
}
