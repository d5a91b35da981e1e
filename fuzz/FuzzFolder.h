// What every fuzz target starts from: a fresh temporary folder as AppPath,
// made once per process, with the tables a start-up prepares. The folder is
// in memory where the system offers it, so that the files every input goes
// through never wait for a disk.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "units/UnitTable.h"

// The folder, and the log that lands beside it, go with the process.
struct FuzzFolder {
    std::string path;
    ~FuzzFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
        std::filesystem::remove(path + "History.log", ec);
    }
};

inline const std::string& Fuzz_Folder() {
    static const FuzzFolder folder{[] {
        std::error_code ec;
        const std::filesystem::path base =
            std::filesystem::is_directory("/dev/shm", ec) ? "/dev/shm" : std::filesystem::temp_directory_path();
        std::string d = (base / "torvane-fuzz-XXXXXX").string();
        if (mkdtemp(d.data()) == nullptr) std::abort();
        Init_ItemCounts();
        Init_Templates();
        Unit_SetNames();
        for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = kUnitFreshSel[k];
        return d;
    }()};
    AppPath = folder.path;
    return folder.path;
}

// The input, byte for byte, as the file at path.
inline void Fuzz_Write(const std::string& path, const uint8_t* data, size_t size) {
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}
