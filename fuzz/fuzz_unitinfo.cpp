// UnitInfo.dat as the user's disk may hold it: any bytes at all. Loading
// either succeeds with every pick inside its category or fails with a
// RuntimeError; nothing else may happen.
#include <cstdint>
#include <cstdlib>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "core/UnitFile.h"
#include "fuzz/FuzzFolder.h"
#include "units/UnitTable.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Fuzz_Folder();
    Fuzz_Write(UnitFile_Path(), data, size);
    try {
        Unit_Load();
        for (int k = 0; k < kUnitCategories; ++k)
            if (UnitTable[k].Sel < 0 || UnitTable[k].Sel >= Unit_Count(k)) std::abort();
    } catch (const RuntimeError&) {
    }
    return 0;
}
