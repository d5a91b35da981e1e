// The file commands of the main window: New's question, Open, Save, Save As,
// Save Results, Import and Export Pattern, Export PDF, and the position kept
// at closing.
#include <QApplication>

#include "commands/DocumentCommands.h"
#include "commands/PatternFile.h"
#include "commands/PrintCommands.h"
#include "common/ui/QtSettingsStore.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "common/ui/FileDialog.h"
#include "common/ui/Hourglass.h"
#include "workbench/frmMain.h"

namespace {

const QString kDocumentFilter = "Motor Selection Data(*.AP2)";
const QString kDocumentSuffix = "AP2";  // so that the Open dialog lists what was saved
const QString kResultsFilter = "(*.TXT)";
const QString kResultsTitle = "Save Calculation Results";
const QString kPdfFilter = "PDF files (*.pdf)";
const QString kPointTableFilter = "Point table (*.csv)";

}  // namespace

bool frmMain::ConfirmLeave() {
    return Document_ConfirmLeave([this] { return mnuFileSave_Click(); });
}

FileLoadHooks frmMain::LoadHooks() {
    FileLoadHooks hooks;
    hooks.resetDisplay = [this] { Disp_Reset(); };
    hooks.refresh = [this] { Disp_Loaded(); };
    hooks.setTitle = [this](const std::string& t) { setWindowTitle(QString::fromStdString(t)); };
    return hooks;
}

void frmMain::mnuFileOpen_Click() {
    if (!ConfirmLeave()) return;
    const QString path = FileDialog_Open(this, kDocumentFilter, DialogFor::OpenApplication);
    if (path.isEmpty()) return;
    File_Load(path.toStdString(), LoadHooks());  // the file's name becomes the document's
    imgElement_Click(1);
}

bool frmMain::mnuFileSave_Click() {
    if (DocumentNamed != 1) return mnuFileSaveAs_Click();
    Hourglass wait;
    return Document_Save();
}

bool frmMain::mnuFileSaveAs_Click() {
    const QString path = FileDialog_Save(this, kDocumentFilter, "Save As", kDocumentSuffix);
    if (path.isEmpty()) return false;
    const std::string caption = Document_SaveAs(path.toStdString());
    if (caption.empty()) return false;
    setWindowTitle(QString::fromStdString(caption));
    return true;
}

bool frmMain::AskResultsFile(std::string& fileName) {
    // The results file is written under the name as given: no suffix is added.
    fileName = FileDialog_Save(this, kResultsFilter, kResultsTitle).toStdString();
    return !fileName.empty();
}

void frmMain::mnuPatternImport_Click() {
    const QString path = FileDialog_Open(this, kPointTableFilter);
    if (!path.isEmpty() && Pattern_Import(path.toStdString())) Disp_Refresh();
}

void frmMain::mnuPatternExport_Click() {
    const QString path = FileDialog_Save(this, kPointTableFilter);
    if (!path.isEmpty()) Pattern_Export(path.toStdString(), PointColumns::Time);
}

void frmMain::StorePosition() { Window_Store(this, kMainWindowKeys); }

void frmMain::mnuFileExport_Click() {
    const QString path = FileDialog_Save(this, kPdfFilter);
    if (path.isEmpty()) return;
    Hourglass wait;
    Print_Export(Print_Request(Print_Open(), "", Report_Today()), path.toStdString());
}
