// Param.ini as a user may have edited it: any bytes at all. Writing the
// results file of a ready-made chain over it must end, whatever the file
// holds. The input's length picks one of the nine chains, so that each
// input costs one results file and every chain has its turn.
#include <cstdint>
#include <filesystem>
#include <string>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/HistoryLog.h"
#include "core/Tables.h"
#include "fuzz/FuzzFolder.h"
#include "reports/ParamIni.h"
#include "reports/mdlFileOutput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    MsgBox_SetHandler([](const MsgRequest&) { return MsgAnswer::OK; });
    const std::string& dir = Fuzz_Folder();
    Fuzz_Write(ParamIni_Path(), data, size);
    std::filesystem::remove(History_Path());  // the log of one input at a time
    const auto t = static_cast<int16_t>(1 + size % 9);
    Template_Fill(t, true);
    ElementCount = MecaTemplateCount[t];
    Culcurate_All();
    Results_Save(dir + "/results.txt");
    return 0;
}
