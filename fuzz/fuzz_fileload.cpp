// An application file as the user's disk may hold it: any bytes at all.
// Opening it never crashes, leaves a document the program can work with,
// and that document saves and opens again.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "persist/mdlFile.h"
#include "units/UnitTable.h"

namespace {

const std::string& Folder() {
    static const std::string dir = [] {
        std::string d = (std::filesystem::temp_directory_path() / "torvane-fuzz-XXXXXX").string();
        if (mkdtemp(d.data()) == nullptr) std::abort();
        AppPath = d;
        Init_ItemCounts();
        Init_Templates();
        Unit_SetNames();
        for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = kUnitFreshSel[k];
        return d;
    }();
    return dir;
}

void Check_Usable() {
    bool ok = ElementCount >= 1 && ElementCount <= kMaxElements && (MotorSelected == 0 || MotorSelected == 1) &&
              Element[0].ElementType == kTypeMotor && PatternRowCount >= 0 && PatternRowCount <= kPatarnRows;
    for (int slot = 1; slot < kMaxElements; ++slot) {
        const int16_t t = Element[slot].ElementType;
        ok = ok && (t == kTypeEmpty || (t != kTypeMotor && Type_Known(t)));
    }
    for (int k = 0; k < kUnitCategories; ++k) ok = ok && UnitTable[k].Sel >= 0 && UnitTable[k].Sel < Unit_Count(k);
    if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string path = Folder() + "/fuzz.AP2";
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    File_Load(path);
    Check_Usable();
    if (!File_Save(path)) std::abort();
    File_Load(path);
    Check_Usable();
    return 0;
}
