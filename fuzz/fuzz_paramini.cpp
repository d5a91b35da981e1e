// Param.ini as a user may have edited it: any bytes at all. Writing the
// results files of the nine ready-made chains over it must end, whatever
// the file holds.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "reports/ParamIni.h"
#include "reports/mdlFileOutput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string dir = [] {
        std::string d = (std::filesystem::temp_directory_path() / "torvane-fuzz-XXXXXX").string();
        if (mkdtemp(d.data()) == nullptr) std::abort();
        MsgBox_SetHandler([](const MsgRequest&) { return MsgAnswer::OK; });
        return d;
    }();
    AppPath = dir;
    std::ofstream(ParamIni_Path(), std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    for (int16_t t = 1; t <= 9; ++t) {
        Template_Fill(t, true);
        ElementCount = MecaTemplateCount[t];
        Culcurate_All();
        Results_Save(dir + "/results.txt");
    }
    return 0;
}
