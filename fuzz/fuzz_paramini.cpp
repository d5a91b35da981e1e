// Param.ini as a user may have edited it: any bytes at all. Writing the
// results files of the nine ready-made chains over it must end, whatever
// the file holds.
#include <cstdint>
#include <string>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "fuzz/FuzzFolder.h"
#include "reports/ParamIni.h"
#include "reports/mdlFileOutput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    MsgBox_SetHandler([](const MsgRequest&) { return MsgAnswer::OK; });
    const std::string& dir = Fuzz_Folder();
    Fuzz_Write(ParamIni_Path(), data, size);
    for (int16_t t = 1; t <= 9; ++t) {
        Template_Fill(t, true);
        ElementCount = MecaTemplateCount[t];
        Culcurate_All();
        Results_Save(dir + "/results.txt");
    }
    return 0;
}
