#include "core/Startup.h"

#include "core/Catalogue.h"
#include "core/DataFolders.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "core/UnitFile.h"

void Main_Prepare(const std::string& commandLine) {
    if (!commandLine.empty()) {
        CommandFileGiven = 1;
        FileName = commandLine;
    }
    AppPath = AppPath_For(FolderHints_Read());
    Init_ItemCounts();
    Init_Templates();
    Unit_LoadOrDefaults();
    Disp_Reset();
}
