#include "core/UnitFile.h"

#include <array>
#include <fstream>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "units/UnitTable.h"

namespace {

void SetPicks(const std::array<int16_t, kUnitCategories>& picks) {
    for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = picks[k];
}

}  // namespace

std::string UnitFile_Path() { return AppPath + "/UnitInfo.dat"; }

void Unit_Load() {
    Unit_SetNames();
    const std::string path = UnitFile_Path();
    { std::ofstream touch(path, std::ios::app); }
    std::ifstream in(path, std::ios::binary);
    if (!in || in.peek() == std::ifstream::traits_type::eof()) {
        SetPicks(kUnitFreshSel);
        return;
    }
    std::array<int16_t, kUnitCategories> picks{};
    for (int k = 0; k < kUnitCategories; ++k) {
        std::string line;
        if (!std::getline(in, line)) throw RuntimeError("Input past end of file");
        if (!line.empty() && line.back() == '\r') line.pop_back();
        picks[k] = CInt(line);
        if (picks[k] < 0 || picks[k] >= Unit_Count(k)) throw RuntimeError("Subscript out of range");
    }
    SetPicks(picks);
}

void Unit_Save() {
    const std::string path = UnitFile_Path();
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    for (const UnitCategory& c : UnitTable) out << c.Sel << "\r\n";
    out.flush();
    if (!out) throw RuntimeError("Path/File access error: " + path);
}

void Unit_LoadOrDefaults() {
    try {
        Unit_Load();
    } catch (const RuntimeError& e) {
        SetPicks(kUnitFreshSel);
        MsgBox("The unit settings file " + UnitFile_Path() + " could not be read (" + e.what() +
                   "). The default units are used.",
               "Units", MsgIcon::Exclamation);
    }
}
