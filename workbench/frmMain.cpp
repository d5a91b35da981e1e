#include "workbench/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "commands/Activation.h"
#include "commands/ChainCommands.h"
#include "commands/PatternCommands.h"
#include "commands/ResultsCommand.h"
#include "commands/SelectionCommands.h"
#include "commands/StripCommands.h"
#include "common/ui/EditorDetach.h"
#include "common/ui/QtSettingsStore.h"
#include "common/ui/RunGuarded.h"
#include "core/Caption.h"
#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "pattern/Trapezoid.h"
#include "pattern/ui/PatarnGrid.h"
#include "pattern/ui/PatternGraph.h"
#include "pattern/ui/frmPatarn.h"
#include "selection/ui/frmChecks.h"
#include "selection/ui/frmList1.h"
#include "workbench/ChainStrip.h"
#include "workbench/ResultGrid.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmItem.h"
#include "workbench/frmMeca.h"
#include "workbench/frmUnit.h"

frmMain::frmMain(QWidget* parent) : QMainWindow(parent) {
    setObjectName("frmMain");
    Q_INIT_RESOURCE(icons);
    BuildMenus();
    BuildToolBar();
    setCentralWidget(BuildCentre());
    infobox_ = new frmInfobox(this);
    connect(infobox_, &frmInfobox::documentChanged, this, &frmMain::Disp_Refresh);
    connect(infobox_, &frmInfobox::elementPicked, this, &frmMain::Strip_ShowSelected);
    item_ = new frmItem(this);
    connect(item_, &frmItem::documentChanged, this, &frmMain::Disp_Refresh);
    connect(item_, &frmItem::deleteSelected, this, [this] { RunCommand([this] { mnuDelete1_Click(); }); });
    connect(item_, &frmItem::selectInList, infobox_, &frmInfobox::cboElement_Select);
    meca_ = new frmMeca(this);
    connect(meca_, &frmMeca::confirmed, this, [this] {
        Disp_Reset();
        infobox_->show();
        if (MecaResult == 2) item_->show();
    });
    patarn_ = new frmPatarn([this] { return vsfPatarn->GridRow(); }, this);
    connect(patarn_, &frmPatarn::built, this, &frmMain::Disp_Refresh);
    unit_ = new frmUnit(this);
    connect(unit_, &frmUnit::applied, this, &frmMain::Disp_Refresh);
    checks_ = new frmChecks(this);
    resize(1180, 760);
    Window_Load(this, kMainWindowKeys);
    Disp_Reset();
}

frmMain::~frmMain() { Editor_Detach(vsfPatarn); }

QAction* frmMain::Action(const QString& name) const { return findChild<QAction*>(name); }

frmList1* frmMain::Wizard() const { return list1_; }

// A command of a menu, a key or the toolbar. The focus leaves the grid first,
// so that an edit in progress is finished before the command reads the tables.
void frmMain::RunCommand(const std::function<void()>& command) {
    Picture1->setFocus();
    if (!Run_Guarded("Torvane", command)) Disp_Refresh();
}

void frmMain::Disp_Reset() {
    vsfPatarn->Disp_Patarn();
    vsfMotor->Clear();
    lblMotor->clear();
    lblDriver->clear();
    picCirclePatarn->Disp_Graph(Patarn, 0);
    picTorquePatarn->Disp_Graph(Patarn, 0);
    strip->Disp_Strip(0);
    strip->ClearLooks();
    setWindowTitle(QString::fromStdString(Caption_Of("Create application")));
    strip->ScrollTo(0);
    infobox_->Infobox_Clear();
    vsfPatarn->scrollToTop();
    vsfPatarn->setCurrentCell(0, 1);
    checks_->Disp_Checks();
}

void frmMain::Disp_Headers() {
    vsfPatarn->Disp_Headers();
    vsfMotor->Disp_Units();
}

void frmMain::Disp_Refresh() {
    vsfPatarn->Disp_Patarn();
    const int n = PatternRowCount;
    picCirclePatarn->Disp_Graph(Patarn, n);
    picTorquePatarn->Disp_Graph(Patarn, n);
    Disp_Headers();
    vsfMotor->Disp_Result(MotorSelected);
    if (MotorSelected == 1) {
        lblMotor->setText(QString::fromStdString(MotorModelText.Utf8()));
        lblDriver->setText(QString::fromStdString(DriverModelText.Utf8()));
    }
    infobox_->Disp_Selected();
    Disp_ElementList();
    Disp_Strip(strip->First());
    checks_->Disp_Checks();
}

void frmMain::Disp_ElementList() { infobox_->Disp_ElementList(); }

void frmMain::Disp_Strip(int first) {
    strip->Disp_Strip(first);
    HScroll1_Change(first);
}

void frmMain::Disp_Loaded() {
    Disp_Strip(strip->First());
    imgElement_Click(1);
    Disp_Refresh();
}

void frmMain::HScroll1_Change(int value) {
    strip->Disp_Strip(value);
    strip->ClearLooks();
    if (const int slot = Strip_SelectedSlot(value); slot >= 0) strip->SetSelectedLook(slot, true);
    Strip_Scroll(value);
}

void frmMain::imgElement_Click(int index) {
    Strip_Click(index);
    HScroll1_Change(FirstVisible);
    if (SelectedElement != 0) infobox_->cboElement_Select(SelectedElement - 1);
    infobox_->show();
}

// The selected element comes into the visible slots of the strip, highlighted.
void frmMain::Strip_ShowSelected() {
    const int first = Strip_FirstShowing(strip->First());
    strip->ScrollTo(first);
    HScroll1_Change(first);
}

void frmMain::imgElement_RightClick(int index, QPoint global) {
    const int p = FirstVisible + index;
    if (p < 0 || p >= kElementSlots || Element[p].ElementType == kTypeEmpty) return;
    imgElement_Click(index);
    mnuRight1->popup(global);
}

void frmMain::Picture1_KeyDown(int key) {
    switch (key) {
        case Qt::Key_Delete: RunCommand([this] { mnuDelete1_Click(); }); return;
        case Qt::Key_Left:
            if (Strip_Left()) strip->ScrollTo(0);
            break;
        case Qt::Key_Right: Strip_Right(); break;
        default: return;
    }
    HScroll1_Change(strip->First());
    if (SelectedElement != 0) infobox_->cboElement_Select(SelectedElement - 1);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Picture1 && event->type() == QEvent::KeyPress) {
        Picture1_KeyDown(static_cast<QKeyEvent*>(event)->key());
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::mousePressEvent(QMouseEvent* event) {
    Picture1->setFocus();
    QMainWindow::mousePressEvent(event);
}

void frmMain::mnuFileNew_Click() {
    if (!ConfirmLeave()) return;
    show();
    meca_->exec();
    Form_Activate();
}

void frmMain::Start() {
    if (CommandFileGiven == 0) meca_->exec();
    Form_Activate();
}

void frmMain::mnuPatarn_Click() {
    if (!Trapezoid_MayOpen(vsfPatarn->GridRow())) return;
    patarn_->show();
    patarn_->raise();
    patarn_->activateWindow();
}

void frmMain::mnuElementSelect_Click() {
    item_->show();
    item_->raise();
    item_->activateWindow();
}

void frmMain::mnuElementData_Click() {
    infobox_->show();
    infobox_->raise();
}

void frmMain::mnuPerSet_Click() {
    unit_->show();
    unit_->raise();
    unit_->activateWindow();
}

void frmMain::mnuCulcurate_Click() {
    Results_Command([this](std::string& fileName) { return AskResultsFile(fileName); });
}

void frmMain::mnuMortorSelect_Click() {
    if (!MotorSelection_MayOpen()) return;
    if (list1_) {  // the wizard is up already: its page comes to the front
        QWidget* page = list1_->ShownPage();
        page->raise();
        page->activateWindow();
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    list1_ = new frmList1(this);
    connect(list1_, &frmList1::decided, this, &frmMain::Disp_Refresh);
    list1_->show();
    list1_->WizardOpening = 1;
    QApplication::restoreOverrideCursor();
}

void frmMain::mnuChecks_Click() {
    checks_->show();
    checks_->raise();
    checks_->activateWindow();
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
    // The palette and the settings go into the taskbar and come back with the
    // main window; maximising leaves them where they are.
    if (event->type() == QEvent::WindowStateChange) {
        const bool wasMinimised = static_cast<QWindowStateChangeEvent*>(event)->oldState() & Qt::WindowMinimized;
        for (QWidget* floating : {static_cast<QWidget*>(item_), static_cast<QWidget*>(infobox_)}) {
            if (!floating->isVisible()) continue;
            if (isMinimized()) floating->showMinimized();
            else if (wasMinimised && windowState() == Qt::WindowNoState) floating->showNormal();
        }
    }
}

void frmMain::Form_Activate() {
    ActivationHooks hooks;
    hooks.fileLoad = LoadHooks();
    hooks.resetDisplay = [this] { Disp_Reset(); };
    hooks.setTitle = [this](const std::string& t) { setWindowTitle(QString::fromStdString(t)); };
    hooks.refresh = [this] { Disp_Loaded(); };
    hooks.setUnitRow = [this] { Disp_Headers(); };
    Run_Guarded("Torvane", [&hooks] { Main_Activate(hooks); });
}

void frmMain::closeEvent(QCloseEvent* event) {
    Picture1->setFocus();
    if (!ConfirmLeave()) {
        event->ignore();
        return;
    }
    StorePosition();
    // The other windows unload in a fixed order; each that keeps a place
    // stores it as it goes. The wizard takes its driver page with it.
    infobox_->Unload();
    item_->Unload();
    if (list1_) list1_->close();
    meca_->hide();
    if (unit_->isVisible()) unit_->close();
    checks_->close();
    event->accept();
}

void frmMain::imgElement_DragDrop(int index, int16_t type) {
    const auto p = static_cast<int16_t>(index + FirstVisible);
    if (!Chain_Drop(p, type)) return;
    Disp_Refresh();
    if (item_->isVisible()) item_->activateWindow();
}

void frmMain::mnuDelete1_Click() {
    if (!Chain_Delete()) return;
    if (SelectedElement == 0) strip->ScrollTo(0);
    Disp_Refresh();
}

void frmMain::vsfPatarn_AfterEdit(int row, int col) {
    const std::string text = vsfPatarn->CellText(vsfPatarn->GridRow(), vsfPatarn->GridCol());
    auto edit = PatternEdit::Stored;  // a failed recalculation comes after the store
    Run_Guarded("Operating Pattern", [&] { edit = Patarn_AfterEdit(row, col, text, vsfPatarn->EscapePending); });
    if (edit == PatternEdit::Skipped) return;
    if (edit == PatternEdit::Refused) vsfPatarn->Disp_Patarn();  // the cell shows its stored value again
    else Disp_PatternAndResults();
    vsfPatarn->setFocus();
}

// What an edit of the pattern changes: the grid, both graphs, the unit row
// and the results; the strip and the settings stay as they are.
void frmMain::Disp_PatternAndResults() {
    vsfPatarn->Disp_Patarn();
    picCirclePatarn->Disp_Graph(Patarn, PatternRowCount);
    picTorquePatarn->Disp_Graph(Patarn, PatternRowCount);
    Disp_Headers();
    vsfMotor->Disp_Result(MotorSelected);
    checks_->Disp_Checks();
}

void frmMain::mnuInsert_Click() {
    Patarn_InsertRow(Patarn, static_cast<int16_t>(vsfPatarn->GridRow() - 1));
    vsfPatarn->Disp_Patarn();
}

void frmMain::mnuDelete2_Click() {
    int low = 0, high = 0;
    vsfPatarn->SelectedBlock(low, high);
    if (!Patarn_DeleteRows(low, high)) return;
    vsfPatarn_AfterEdit(0, 0);
}
