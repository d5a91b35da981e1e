#include "core/Activation.h"

#include "core/AppPath.h"
#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "core/UnitFile.h"

namespace {

void Call(const std::function<void()>& f) {
    if (f) f();
}

}  // namespace

void Main_Prepare(const std::string& commandLine) {
    if (!commandLine.empty()) {
        CommandFileGiven = 1;
        FileName = commandLine;
    }
    AppPath = AppPath_Find();
    Init_ItemCounts();
    Init_Templates();
    Unit_LoadOrDefaults();
    Disp_Reset();
}

void Main_Activate(const ActivationSeams& seams) {
    if (CommandFileGiven == 1) {
        SelectedElement = 1;
        if (seams.loadFile) seams.loadFile(FileName);
        CommandFileGiven = 0;
        DocumentNamed = 1;
        return;
    }
    switch (MecaResult) {
        case 1:
            Disp_Reset();
            Call(seams.resetDisplay);
            if (MecaTemplateNo != 0 && seams.setTitle)
                seams.setTitle("Torvane-[" + std::string(Template_Name(MecaTemplateNo)) + "]");
            Template_Fill(MecaTemplateNo, true);
            SelectedElement = 1;
            ElementCount = MecaTemplateNo >= 0 && MecaTemplateNo < kTemplates ? MecaTemplateCount[MecaTemplateNo] : 1;
            Call(seams.recalculate);
            DocumentNamed = 0;
            Call(seams.refresh);
            MecaResult = 0;
            break;
        case 2:
            Disp_Reset();
            Call(seams.resetDisplay);
            Template_Fill(MecaTemplateNo, false);
            DocumentNamed = 0;
            ElementCount = 1;
            MecaResult = 0;
            break;
        case 3:
            MecaResult = 0;
            break;
        default:
            break;
    }
    Call(seams.setUnitRow);
}
