#include "commands/DocumentCommands.h"

#include "base/MsgBox.h"
#include "core/Tables.h"

bool Document_ConfirmLeave(const std::function<bool()>& save) {
    if (DirtyFlag != 1) return true;
    switch (MsgBox("Save changes?", "", MsgIcon::Question, MsgButtons::YesNoCancel)) {
        case MsgAnswer::Yes: return save ? save() : true;
        case MsgAnswer::No: return true;
        default: return false;
    }
}
