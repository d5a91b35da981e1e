#include "commands/Activation.h"

#include "calc/mdlCulcurate.h"
#include "core/Caption.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "persist/mdlFile.h"

namespace {

void Call(const std::function<void()>& f) {
    if (f) f();
}

}  // namespace

bool Main_Activate(const ActivationHooks& hooks) {
    if (CommandFileGiven == 1) {
        SelectedElement = 1;
        const bool loaded = File_Load(FileName, hooks.fileLoad);
        CommandFileGiven = 0;
        DocumentNamed = 1;
        return loaded;
    }
    switch (MecaResult) {
        case 1:
            Disp_Reset();
            Call(hooks.resetDisplay);
            if (MecaTemplateNo != 0 && hooks.setTitle)
                hooks.setTitle(Caption_Of(Template_Name(MecaTemplateNo)));
            Template_Fill(MecaTemplateNo, true);
            SelectedElement = 1;
            ElementCount = MecaTemplateNo >= 0 && MecaTemplateNo < kTemplates ? MecaTemplateCount[MecaTemplateNo] : 1;
            Culcurate_All();
            DocumentNamed = 0;
            Call(hooks.refresh);
            MecaResult = 0;
            break;
        case 2:
            Disp_Reset();
            Call(hooks.resetDisplay);
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
    Call(hooks.setUnitRow);
    return true;
}
