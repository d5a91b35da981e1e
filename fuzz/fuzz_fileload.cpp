// An application file as the user's disk may hold it: any bytes at all.
// Opening it never crashes, leaves a document the program can work with,
// and that document saves and opens again.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "fuzz/FuzzFolder.h"
#include "persist/mdlFile.h"
#include "units/UnitTable.h"

namespace {

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
    const std::string path = Fuzz_Folder() + "/fuzz.AP2";
    Fuzz_Write(path, data, size);
    File_Load(path);
    Check_Usable();
    if (!File_Save(path)) std::abort();
    File_Load(path);
    Check_Usable();
    return 0;
}
