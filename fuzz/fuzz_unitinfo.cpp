// UnitInfo.dat as the user's disk may hold it: any bytes at all. Loading
// either succeeds with every pick inside its category or fails with a
// RuntimeError; nothing else may happen.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "core/UnitFile.h"
#include "units/UnitTable.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string dir = [] {
        std::string d = (std::filesystem::temp_directory_path() / "torvane-fuzz-XXXXXX").string();
        if (mkdtemp(d.data()) == nullptr) std::abort();
        return d;
    }();
    AppPath = dir;
    std::ofstream(UnitFile_Path(), std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    try {
        Unit_Load();
        for (int k = 0; k < kUnitCategories; ++k)
            if (UnitTable[k].Sel < 0 || UnitTable[k].Sel >= Unit_Count(k)) std::abort();
    } catch (const RuntimeError&) {
    }
    return 0;
}
