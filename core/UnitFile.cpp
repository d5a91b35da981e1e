#include "core/UnitFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "base/ReadFile.h"
#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "units/UnitTable.h"

namespace {

void SetPicks(const std::array<int16_t, kUnitCategories>& picks) {
    for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = picks[k];
}

// Eleven short lines; a longer file is read this far.
constexpr std::size_t kFileBytes = 65536;

// Opening for appending creates the file when it is missing. Something
// there that is no regular file (a folder, a FIFO) is left alone.
void Touch(const std::string& path) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
    if (fd >= 0) ::close(fd);
}

}  // namespace

std::string UnitFile_Path() { return AppPath + "/UnitInfo.dat"; }

void Unit_Load() {
    Unit_SetNames();
    const std::string path = UnitFile_Path();
    Touch(path);
    std::string bytes;
    if (!File_ReadPrefix(path, kFileBytes, bytes) || bytes.empty()) {
        SetPicks(kUnitFreshSel);
        return;
    }
    std::istringstream in(bytes);
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
    std::error_code ec;
    const auto kind = std::filesystem::status(path, ec).type();
    if (kind != std::filesystem::file_type::not_found && kind != std::filesystem::file_type::regular)
        throw RuntimeError("Path/File access error: " + path);
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
