#include "commands/ResultsCommand.h"

#include "base/MsgBox.h"
#include "core/Tables.h"
#include "reports/mdlFileOutput.h"

bool Results_Command(const std::function<bool(std::string& fileName)>& askFileName) {
    if (ElementCount <= 1) {
        MsgBox("Calculation results cannot be saved because there are no connected components.", "",
               MsgIcon::Critical, MsgButtons::OK);
        return false;
    }
    std::string fileName;
    if (!askFileName(fileName)) return false;
    return Results_Save(fileName);
}
