#include "commands/SelectionCommands.h"

#include "base/MsgBox.h"
#include "core/Tables.h"

bool MotorSelection_MayOpen() {
    if (PatternRowCount != 0) return true;
    MsgBox("Motor cannot be selected because operating pattern is not input.", "", MsgIcon::Exclamation);
    return false;
}
