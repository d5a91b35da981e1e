#include "commands/PatternFile.h"

#include "base/MsgBox.h"
#include "base/ReadFile.h"
#include "commands/PatternCommands.h"
#include "commands/PointRows.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "pattern/PointTableText.h"
#include "persist/FileReplace.h"

namespace {

bool Refuse(const std::string& text, const std::string& title) {
    MsgBox(text, title, MsgIcon::Exclamation);
    return false;
}

}  // namespace

bool Pattern_Import(const std::string& path) {
    std::string bytes;
    if (!File_ReadPrefix(path, kPointTableLimit + 1, bytes)) return Refuse("File read failed.", kImportTitle);
    if (bytes.size() > kPointTableLimit) return Refuse("The file is too long for a point table.", kImportTitle);
    PointTable table;
    if (const std::string why = PointTable_Parse(bytes, table); !why.empty()) return Refuse(why, kImportTitle);
    PatarnTable rows{};
    if (const PointRefusal refusal = PointTable_Rows(table, rows); !refusal.text.empty())
        return Refuse(refusal.text, refusal.title);
    Patarn_CopyRows(rows, Patarn);
    Patarn_ClearRow(Patarn, kPatarnRows + 1);
    DirtyFlag = 1;
    Patarn_Recalculate();
    return true;
}

bool Pattern_Export(const std::string& path, PointColumns columns) {
    if (File_Replace(path, PointTable_Text(Patarn, columns))) return true;
    return Refuse("The point table could not be written.", kExportTitle);
}
