// MtrUser.dat as the user's disk may hold it: any bytes at all. Reading it
// either gives seven texts or fails with a RuntimeError; nothing else.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "persist/MtrUser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string dir = [] {
        std::string d = (std::filesystem::temp_directory_path() / "torvane-fuzz-XXXXXX").string();
        if (mkdtemp(d.data()) == nullptr) std::abort();
        return d;
    }();
    AppPath = dir;
    std::ofstream(MtrUser_Path(), std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    try {
        const AdminTexts texts = MtrUser_Read();
        for (const std::string& t : texts)
            if (t.size() > size) std::abort();
    } catch (const RuntimeError&) {
    }
    return 0;
}
