// MtrUser.dat as the user's disk may hold it: any bytes at all. Reading it
// either gives seven texts or fails with a RuntimeError; nothing else.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/RuntimeError.h"
#include "fuzz/FuzzFolder.h"
#include "persist/MtrUser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Fuzz_Folder();
    Fuzz_Write(MtrUser_Path(), data, size);
    try {
        const AdminTexts texts = MtrUser_Read();
        for (const std::string& t : texts)
            if (t.size() > size) std::abort();
    } catch (const RuntimeError&) {
    }
    return 0;
}
