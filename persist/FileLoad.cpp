// A part of persist/mdlFile.h.
#include "base/MsgBox.h"
#include "base/ReadFile.h"
#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "core/Caption.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "core/UnitFile.h"
#include "core/PatarnRows.h"
#include "persist/AppFileLayout.h"
#include "persist/FileRead.h"
#include "persist/mdlFile.h"

namespace {

void Call(const std::function<void()>& f) {
    if (f) f();
}

// A step after the reading that may fail with a run-time error (writing
// UnitInfo.dat, a component the calculation cannot reduce): the error is
// shown and the loading goes on with the next step.
bool Run_Step(void (*step)()) {
    try {
        step();
        return true;
    } catch (const RuntimeError& e) {
        MsgBox(e.what(), "Open", MsgIcon::Exclamation);
        return false;
    }
}

// The chosen motor's inertias and mass, from the rows the driver selection filled.
void Selected_FromMotor() {
    const auto& item = Element[0].Item;
    SelectedMotorMass = item[7].Value;
    SelectedJm = item[2].Value + item[6].Value;
    SelectedJb = item[6].Value;
}

}  // namespace

bool File_Load(const std::string& path, const FileLoadHooks& hooks) {
    Disp_Reset();
    Call(hooks.resetDisplay);

    // No layout is longer than the current one: a longer file is read as far
    // as the layout goes, and a device or a huge file is never read to its end.
    std::string bytes;
    const FileReadResult result =
        File_ReadPrefix(path, kCurrentFileBytes, bytes) ? File_Read(bytes) : FileReadResult::Failed;
    if (result == FileReadResult::Failed) MsgBox("File read failed.", "Open", MsgIcon::Exclamation);
    UnreadFile = result == FileReadResult::Read ? std::string() : path;

    if (MotorSelected == 1) Selected_FromMotor();
    DocumentNamed = 1;
    FileName = path;
    PatternRowCount = Patarn_CountRows(Patarn);
    const bool unitsSaved = Run_Step(Unit_Save);
    const bool calculated = Run_Step(Culcurate_All);
    Call(hooks.refresh);
    if (hooks.setTitle) hooks.setTitle(Caption_OfFile(path));
    Call(hooks.showInfobox);
    return result == FileReadResult::Read && unitsSaved && calculated;
}
