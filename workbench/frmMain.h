// The main window of the workbench: the chain strip, the pattern grid with
// its two graphs, the results grid, the menus and the toolbar. Handlers read
// the widgets, call the core and refresh from the tables.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <functional>

#include "persist/mdlFile.h"

class QAction;
class QLabel;
class QMenu;
class QToolBar;
class QWidget;
class ChainStrip;
class PatarnGrid;
class PatternGraph;
class ResultGrid;
class frmChecks;
class frmInfobox;
class frmItem;
class frmList1;
class frmMeca;
class frmPatarn;
class frmUnit;

class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(QWidget* parent = nullptr);
    ~frmMain() override;

    // The refresh pipeline and its parts.
    void Disp_Refresh();
    void Disp_Reset();
    void Disp_Strip(int first);
    void Disp_ElementList();
    void Disp_Loaded();
    void Disp_Headers();
    void Disp_PatternAndResults();

    // Public operations of the form, called also from other windows.
    void imgElement_Click(int index);
    void mnuDelete1_Click();
    void vsfPatarn_AfterEdit(int row, int col);

    // Commands of the menus.
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    bool mnuFileSave_Click();
    bool mnuFileSaveAs_Click();
    void mnuMortorSelect_Click();
    void mnuChecks_Click();
    void mnuCulcurate_Click();
    // The report of the document, as the print dialog would print it, into a PDF file.
    void mnuFileExport_Click();
    // The pattern from a point table (CSV), and the pattern into one.
    void mnuPatternImport_Click();
    void mnuPatternExport_Click();
    void mnuPatarn_Click();
    void mnuPerSet_Click();
    void mnuElementSelect_Click();
    void mnuElementData_Click();

    // The start: the file of the command line is opened, or the mechanical system is asked.
    void Start();

    frmMeca* Meca() const { return meca_; }
    frmPatarn* TrapezoidWindow() const { return patarn_; }
    frmUnit* UnitWindow() const { return unit_; }
    frmItem* ItemWindow() const { return item_; }
    frmInfobox* Infobox() const { return infobox_; }
    frmChecks* ChecksWindow() const { return checks_; }
    // The motor selection wizard while it is open.
    frmList1* Wizard() const;

    QAction* Action(const QString& name) const;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void BuildToolBar();
    QWidget* BuildCentre();
    void Form_Activate();
    void HScroll1_Change(int value);
    void Strip_ShowSelected();
    void imgElement_DragDrop(int index, int16_t type);
    void imgElement_RightClick(int index, QPoint global);
    void Picture1_KeyDown(int key);
    void mnuInsert_Click();
    void mnuDelete2_Click();
    void RunCommand(const std::function<void()>& command);
    void StorePosition();
    bool ConfirmLeave();
    FileLoadHooks LoadHooks();
    bool AskResultsFile(std::string& fileName);

    ChainStrip* strip = nullptr;
    PatarnGrid* vsfPatarn = nullptr;
    PatternGraph* picCirclePatarn = nullptr;
    PatternGraph* picTorquePatarn = nullptr;
    ResultGrid* vsfMotor = nullptr;
    QLabel* lblMotor = nullptr;
    QLabel* lblDriver = nullptr;
    QWidget* Picture1 = nullptr;
    QToolBar* tbToolBar = nullptr;
    QMenu* mnuRight1 = nullptr;
    QMenu* mnuRight2 = nullptr;

    frmMeca* meca_ = nullptr;
    frmPatarn* patarn_ = nullptr;
    frmUnit* unit_ = nullptr;
    frmItem* item_ = nullptr;
    frmInfobox* infobox_ = nullptr;
    frmChecks* checks_ = nullptr;
    QPointer<frmList1> list1_;
};
