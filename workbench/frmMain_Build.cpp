// The building of the main window: its menus, its toolbar and the layout of
// the strip, the pattern grid, the graphs and the results grid.
#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include "pattern/ui/PatarnGrid.h"
#include "pattern/ui/PatternGraph.h"
#include "reports/ui/frmPrint.h"
#include "workbench/ChainStrip.h"
#include "workbench/ResultGrid.h"
#include "workbench/frmAbout.h"
#include "workbench/frmMain.h"
#include "workbench/frmUser.h"

namespace {

QLabel* Caption(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont f = label->font();
    f.setBold(true);
    label->setFont(f);
    return label;
}

}  // namespace

QWidget* frmMain::BuildCentre() {
    auto* centre = new QWidget(this);
    Picture1 = new QWidget(centre);
    Picture1->setObjectName("Picture1");
    Picture1->setFixedSize(1, 1);
    Picture1->setFocusPolicy(Qt::StrongFocus);
    Picture1->installEventFilter(this);

    strip = new ChainStrip(centre);
    connect(strip, &ChainStrip::slotClicked, this, [this](int s) { RunCommand([this, s] { imgElement_Click(s); }); });
    connect(strip, &ChainStrip::slotRightClicked, this, &frmMain::imgElement_RightClick);
    connect(strip, &ChainStrip::typeDropped, this, [this](int s, int type) {
        RunCommand([this, s, type] { imgElement_DragDrop(s, static_cast<int16_t>(type)); });
    });
    connect(strip, &ChainStrip::scrolled, this, &frmMain::HScroll1_Change);

    auto* motorBox = new QGridLayout;
    motorBox->addWidget(Caption("Motor", centre), 0, 0);
    lblMotor = new QLabel(centre);
    lblMotor->setObjectName("lblMotor");
    lblMotor->setFrameShape(QFrame::Panel);
    lblMotor->setFrameShadow(QFrame::Sunken);
    lblMotor->setMinimumWidth(180);
    motorBox->addWidget(lblMotor, 0, 1);
    motorBox->addWidget(Caption("Driver", centre), 1, 0);
    lblDriver = new QLabel(centre);
    lblDriver->setObjectName("lblDriver");
    lblDriver->setFrameShape(QFrame::Panel);
    lblDriver->setFrameShadow(QFrame::Sunken);
    motorBox->addWidget(lblDriver, 1, 1);
    motorBox->setRowStretch(2, 1);

    auto* top = new QHBoxLayout;
    top->addWidget(strip, 1);
    top->addLayout(motorBox);
    top->addWidget(Picture1);

    vsfPatarn = new PatarnGrid(centre);
    connect(vsfPatarn, &PatarnGrid::afterEdit, this, &frmMain::vsfPatarn_AfterEdit);
    connect(vsfPatarn, &PatarnGrid::deleteKey, this, &frmMain::mnuDelete2_Click);
    connect(vsfPatarn, &PatarnGrid::contextMenu, this, [this](QPoint g) { mnuRight2->popup(g); });
    auto* left = new QVBoxLayout;
    left->addWidget(Caption("Operating Pattern", centre));
    left->addWidget(vsfPatarn, 1);

    picCirclePatarn = new PatternGraph(PatternGraph::Kind::Speed, centre);
    picCirclePatarn->setObjectName("picCirclePatarn");
    picTorquePatarn = new PatternGraph(PatternGraph::Kind::Torque, centre);
    picTorquePatarn->setObjectName("picTorquePatarn");
    vsfMotor = new ResultGrid(centre);
    auto* right = new QVBoxLayout;
    right->addWidget(Caption("Rotational speed", centre));
    right->addWidget(picCirclePatarn, 1);
    right->addWidget(Caption("Torque", centre));
    right->addWidget(picTorquePatarn, 1);
    right->addWidget(Caption("Selection Results", centre));
    right->addWidget(vsfMotor);

    auto* bottom = new QHBoxLayout;
    bottom->addLayout(left, 5);
    bottom->addLayout(right, 4);

    auto* main = new QVBoxLayout(centre);
    main->addLayout(top);
    main->addLayout(bottom, 1);
    return centre;
}

void frmMain::BuildMenus() {
    auto add = [this](QMenu* menu, const char* name, const QString& caption, const QKeySequence& key,
                      std::function<void()> command) {
        QAction* a = menu->addAction(caption);
        a->setObjectName(name);
        if (!key.isEmpty()) a->setShortcut(key);
        if (command) connect(a, &QAction::triggered, this, [this, command] { RunCommand(command); });
        else a->setEnabled(false);
        return a;
    };
    QMenu* file = menuBar()->addMenu("File(&F)");
    file->setObjectName("mnuFile");
    add(file, "mnuFileNew", "Create(&N)", {}, [this] { mnuFileNew_Click(); });
    add(file, "mnuFileOpen", "Open(&O)", QKeySequence("Ctrl+O"), [this] { mnuFileOpen_Click(); });
    add(file, "mnuFileSave", "Save(&S)", QKeySequence("Ctrl+S"), [this] { mnuFileSave_Click(); });
    add(file, "mnuFileSaveAs", "Save As(&A)", {}, [this] { mnuFileSaveAs_Click(); });
    add(file, "mnuCulcurate", "Save Results", {}, [this] { mnuCulcurate_Click(); });
    file->addSeparator();
    add(file, "mnuPatternImport", "&Import Pattern...", {}, [this] { mnuPatternImport_Click(); });
    add(file, "mnuPatternExport", "&Export Pattern...", {}, [this] { mnuPatternExport_Click(); });
    file->addSeparator();
    add(file, "mnuFilePrint", "Print(&P)...", QKeySequence("Ctrl+P"), [this] { frmPrint(this).exec(); });
    add(file, "mnuFileExport", "Export PDF...", {}, [this] { mnuFileExport_Click(); });
    add(file, "mnu", "Administrator(&U)", {}, [this] { frmUser(this).exec(); });
    file->addSeparator();
    QAction* end = file->addAction("Exit(&X)");
    end->setObjectName("mnuEnd");
    connect(end, &QAction::triggered, this, &QWidget::close);

    QMenu* tools = menuBar()->addMenu("Tools(&T)");
    tools->setObjectName("mnuEdit");
    add(tools, "mnuMortorSelect", "Motor Selection(&S)", {}, [this] { mnuMortorSelect_Click(); });
    add(tools, "mnuChecks", "Engineering Checks(&E)", {}, [this] { mnuChecks_Click(); });
    tools->addSeparator();
    add(tools, "mnuElementSelect", "Component Selection(&I)", {}, [this] { mnuElementSelect_Click(); });
    tools->addSeparator();
    QAction* data = tools->addAction("Component Settings(&D)");
    data->setObjectName("mnuElementData");  // leaves the focus where it is, so an open edit stays open
    connect(data, &QAction::triggered, this, [this] { mnuElementData_Click(); });
    add(tools, "mnuPatarn", "Trapezoid Patterns(&T)", {}, [this] { mnuPatarn_Click(); });
    tools->addSeparator();
    add(tools, "mnuPerSet", "Units(&U)...", {}, [this] { mnuPerSet_Click(); });

    QMenu* help = menuBar()->addMenu("Help(&H)");
    help->setObjectName("mnuHelp");
    add(help, "mnuHelpAbout", "About this Program(&A)", {}, [this] { frmAbout(this).exec(); });

    mnuRight1 = new QMenu(this);
    mnuRight1->setObjectName("mnuRight1");
    QAction* del1 = mnuRight1->addAction("Delete");
    del1->setObjectName("mnuDelete1");
    connect(del1, &QAction::triggered, this, [this] { RunCommand([this] { mnuDelete1_Click(); }); });
    mnuRight2 = new QMenu(this);
    mnuRight2->setObjectName("mnuRight2");
    QAction* ins = mnuRight2->addAction("Insert");
    ins->setObjectName("mnuInsert");
    connect(ins, &QAction::triggered, this, [this] { mnuInsert_Click(); });
    QAction* del2 = mnuRight2->addAction("Delete");
    del2->setObjectName("mnuDelete2");
    connect(del2, &QAction::triggered, this, [this] { mnuDelete2_Click(); });
}

void frmMain::BuildToolBar() {
    tbToolBar = addToolBar("Toolbar");
    tbToolBar->setObjectName("tbToolBar");
    tbToolBar->setMovable(false);
    tbToolBar->setIconSize(QSize(24, 24));
    struct Key {
        const char* key;
        const char* tip;
        const char* menu;  // the menu entry whose command the key runs
    };
    const Key keys[] = {{"New", "Create", "mnuFileNew"},        {"Open", "Open", "mnuFileOpen"},
                        {"Save", "Save", "mnuFileSave"},        {"Print", "Print", "mnuFilePrint"},
                        {"Motor", "Motor Selection", "mnuMortorSelect"},
                        {"Element", "Component Settings", "mnuElementSelect"},
                        {"Daikei", "Trapezoid Patterns", "mnuPatarn"}};
    for (const Key& k : keys) {
        QAction* menu = Action(k.menu);
        QAction* a = tbToolBar->addAction(QIcon(QString(":/icons/%1.svg").arg(k.key)), k.key);
        a->setObjectName(QString("tb%1").arg(k.key));
        a->setToolTip(k.tip);
        a->setEnabled(menu->isEnabled());
        connect(menu, &QAction::changed, a, [a, menu] { a->setEnabled(menu->isEnabled()); });
        connect(a, &QAction::triggered, menu, &QAction::trigger);
        if (QString(k.key) == "Print") tbToolBar->addSeparator();
    }
}
