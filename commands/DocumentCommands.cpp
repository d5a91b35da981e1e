#include "commands/DocumentCommands.h"

#include "base/MsgBox.h"
#include "core/Caption.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"

bool Document_ConfirmLeave(const std::function<bool()>& save) {
    if (DirtyFlag != 1) return true;
    switch (MsgBox("Save changes?", "", MsgIcon::Question, MsgButtons::YesNoCancel)) {
        case MsgAnswer::Yes: return save ? save() : true;
        case MsgAnswer::No: return true;
        default: return false;
    }
}

bool Document_Save() {
    if (!File_Save(FileName)) return false;
    DirtyFlag = 0;
    return true;
}

std::string Document_SaveAs(const std::string& path) {
    if (!File_Save(path)) return {};
    DirtyFlag = 0;
    FileName = path;
    return Caption_OfFile(path);
}
