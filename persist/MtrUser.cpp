#include "persist/MtrUser.h"

#include <sstream>

#include "base/ReadFile.h"
#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "persist/FileReplace.h"

namespace {

// The fields of the information block, in the order of the file's lines.
template <class Visit>
void Info_Fields(Visit visit) {
    visit(0, PRINTINFO.Name);
    visit(1, PRINTINFO.Corporation);
    visit(2, PRINTINFO.Unit1);
    visit(3, PRINTINFO.Unit2);
    visit(4, PRINTINFO.TelNo);
    visit(5, PRINTINFO.FaxNo);
    visit(6, PRINTINFO.Mail);
}

// Seven short lines; a longer file is read this far.
constexpr std::size_t kFileBytes = 65536;

}  // namespace

std::string MtrUser_Path() { return AppPath + "/MtrUser.dat"; }

bool MtrUser_ReadFile(AdminTexts& texts) {
    std::string bytes;
    if (!File_ReadPrefix(MtrUser_Path(), kFileBytes, bytes)) return false;
    texts = {};
    if (bytes.empty()) return true;
    std::istringstream in(bytes);
    for (std::string& text : texts) {
        std::string line;
        if (!std::getline(in, line)) throw RuntimeError("Input past end of file");
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.size() < 2) throw RuntimeError("Invalid procedure call or argument");
        text = Text_Clean(std::string_view(line).substr(1, line.size() - 2));
    }
    return true;
}

AdminTexts MtrUser_Read() {
    AdminTexts texts;
    if (!MtrUser_ReadFile(texts)) Info_Fields([&texts](int i, const auto& field) { texts[i] = Text_Clean(field.Raw()); });
    return texts;
}

void MtrUser_Write(const AdminTexts& texts) {
    std::string bytes;
    for (const std::string& text : texts) bytes += '"' + text + "\"\r\n";
    if (!File_Replace(MtrUser_Path(), bytes)) throw RuntimeError("Path/File access error: " + MtrUser_Path());
    if (DocumentNamed == 0) Info_Fields([&texts](int i, auto& field) { field = texts[i]; });
    DirtyFlag = 1;
}
