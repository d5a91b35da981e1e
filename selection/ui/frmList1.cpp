#include "selection/ui/frmList1.h"

#include <QCloseEvent>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "commands/ListPrintCommands.h"
#include "base/MsgBox.h"
#include "common/ui/Hourglass.h"
#include "common/ui/RunGuarded.h"
#include "reports/ui/frmListPrint.h"
#include "selection/DriverPage.h"
#include "selection/Recommend.h"
#include "selection/mdlDataBase.h"
#include "selection/ui/GridView.h"
#include "selection/ui/WizardButton.h"
#include "selection/ui/frmList2.h"
#include "selection/ui/frmRecommend.h"
#include "common/ui/QtSettingsStore.h"

namespace {

void Fill(QListWidget* list, const std::vector<std::string>& names, int index) {
    const QSignalBlocker quiet(list);
    list->clear();
    for (const std::string& name : names) list->addItem(QString::fromStdString(name));
    list->setCurrentRow(index);
}

QLabel* Buddy(const QString& caption, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

}  // namespace

frmList1::frmList1(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName("frmList1");
    setWindowTitle(QString::fromUtf8(kTitleMotorSelection));
    setAttribute(Qt::WA_DeleteOnClose);

    lstS = new QListWidget(this);
    lstS->setObjectName("lstS");
    lstM = new QListWidget(this);
    lstM->setObjectName("lstM");
    vsfData = new GridView(kMotorColumns, this);
    vsfData->setObjectName("vsfData");
    lblComment = new QLabel(this);
    lblComment->setObjectName("lblComment");
    lblComment->setFrameShape(QFrame::Panel);
    lblComment->setFrameShadow(QFrame::Sunken);
    lblComment->setWordWrap(true);
    lblComment->setMinimumHeight(2 * fontMetrics().height() + 6);
    cmdJudge = Wizard_Button(this, "cmdJudge", "Judgement");
    CmdPrint = Wizard_Button(this, "CmdPrint", "Print");
    cmdRecommend = Wizard_Button(this, "cmdRecommend", "Recommend...");
    cmdReverce = Wizard_Button(this, "cmdReverce", "< Back(&B)");
    cmdNext = Wizard_Button(this, "cmdNext", "Next >");
    CmdCancel = Wizard_Button(this, "CmdCancel", "Cancel");

    auto* lists = new QGridLayout;
    lists->addWidget(Buddy("Series(&S)", lstS, this), 0, 0);
    lists->addWidget(Buddy("Model(&D)", lstM, this), 0, 1);
    lists->addWidget(lstS, 1, 0);
    lists->addWidget(lstM, 1, 1);
    lstS->setMaximumHeight(8 * fontMetrics().height());
    lstM->setMaximumHeight(8 * fontMetrics().height());
    auto* keys = new QHBoxLayout;
    keys->addWidget(cmdJudge);
    keys->addWidget(CmdPrint);
    keys->addWidget(cmdRecommend);
    keys->addStretch();
    keys->addWidget(cmdReverce);
    keys->addWidget(cmdNext);
    keys->addWidget(CmdCancel);
    auto* main = new QVBoxLayout(this);
    main->addLayout(lists);
    main->addWidget(vsfData, 1);
    main->addWidget(lblComment);
    main->addLayout(keys);

    // A pick is a selection: the focus coming into a list marks a row without picking it.
    connect(lstS, &QListWidget::itemSelectionChanged, this, [this] {
        if (lstS->currentRow() >= 0) lstS_Click(lstS->currentRow());
    });
    connect(lstM, &QListWidget::itemSelectionChanged, this, [this] {
        if (lstM->currentRow() >= 0) lstM_Click(lstM->currentRow());
    });
    connect(vsfData, &GridView::rowChanged, this, [this](int row) {
        MotorPage_MoveToRow(page_, row);
        lblComment->setText(QString::fromStdString(page_.lblComment));
    });
    connect(cmdJudge, &QPushButton::clicked, this, &frmList1::cmdJudge_Click);
    connect(CmdPrint, &QPushButton::clicked, this, &frmList1::CmdPrint_Click);
    connect(cmdRecommend, &QPushButton::clicked, this, &frmList1::cmdRecommend_Click);
    connect(cmdNext, &QPushButton::clicked, this, &frmList1::cmdNext_Click);
    connect(cmdReverce, &QPushButton::clicked, this, &frmList1::Wizard_Unload);
    connect(CmdCancel, &QPushButton::clicked, this, &frmList1::Wizard_Unload);
    resize(1020, 580);
    Form_Load();
}

void frmList1::Form_Load() {
    Window_Load(this, kListWindowKeys);
    Run_Guarded(kTitleMotorSelection, [this] { MotorPage_Load(page_); });
    Disp_Page();
}

void frmList1::Disp_Page() {
    Fill(lstS, page_.lstS, page_.lstSIndex);
    Fill(lstM, page_.lstM, page_.lstMIndex);
    vsfData->Show(page_.vsfData);
    {
        const QSignalBlocker quiet(vsfData);
        vsfData->SetGridRow(page_.Row);
    }
    lblComment->setText(QString::fromStdString(page_.lblComment));
}

void frmList1::lstS_Click(int index) {
    Run_Guarded(kTitleMotorSelection, [&] { MotorPage_PickSeries(page_, index); });
    Disp_Page();
}

void frmList1::lstM_Click(int index) {
    Run_Guarded(kTitleMotorSelection, [&] { MotorPage_PickModel(page_, index); });
    Disp_Page();
}

void frmList1::cmdJudge_Click() {
    bool judged = false;
    Run_Guarded(kTitleMotorSelection, [&] { judged = MotorPage_Judge(page_); });
    Disp_Page();
    if (judged) vsfData->setFocus();
}

void frmList1::cmdNext_Click() {
    DriverPage chosen;
    bool taken = false;
    Run_Guarded(kTitleMotorSelection, [&] { taken = MotorPage_TakeMotor(page_, chosen); });
    if (!taken) return;
    if (!list2_) {
        list2_ = new frmList2(this);
        connect(list2_, &frmList2::decided, this, &frmList1::decided);
    }
    list2_->Motor_Take(chosen);
    list2_->move(pos());
    hide();
    list2_->show();
    list2_->raise();
    list2_->activateWindow();
}

void frmList1::Wizard_Unload() { close(); }

QWidget* frmList1::ShownPage() {
    if (list2_ && list2_->isVisible()) return list2_;
    return this;
}

void frmList1::Form_Activate() {
    if (WizardOpening == 1) {
        WizardOpening = 0;
        return;
    }
    vsfData->setFocus();
}

void frmList1::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !unloading_) Form_Activate();
}

void frmList1::closeEvent(QCloseEvent* event) {
    unloading_ = true;
    Window_Store(this, kListWindowKeys);
    MotorPage_Unload();
    if (list2_) {
        list2_->Unload();
        list2_->deleteLater();
        list2_ = nullptr;
    }
    QWidget::closeEvent(event);
}

void frmList1::CmdPrint_Click() {
    if (!ListPrint_MayOpen(page_)) return;
    ListSheet sheet;
    if (!Run_Guarded("Motor Selection", [&] { sheet = ListPrint_Sheet(page_); })) return;
    frmListPrint(std::move(sheet), this).Open();
}

void frmList1::cmdRecommend_Click() {
    RecommendResult result;
    {
        Hourglass wait;
        if (!Run_Guarded(kTitleRecommend, [&] { result = Recommend({}); })) return;
    }
    if (result.pairs.empty()) {
        MsgBox(std::string(kNothingPasses), std::string(kTitleRecommend), MsgIcon::Information);
        return;
    }
    frmRecommend list(result, this);
    if (list.exec() != QDialog::Accepted) return;
    const Recommendation& pair = result.pairs[static_cast<std::size_t>(list.Chosen())];
    bool picked = false;
    // The group picked is judged at once, so that the pair's motor shows its verdict.
    const bool ran = Run_Guarded(kTitleMotorSelection, [&] {
        picked = MotorPage_Pick(page_, pair.seriesIndex, pair.modelIndex, pair.row) && MotorPage_Judge(page_);
    });
    Disp_Page();
    if (picked) vsfData->setFocus();
    else if (ran) MsgBox("The motor cannot be picked: its series or model group lies beyond the lists.",
                std::string(kTitleRecommend), MsgIcon::Exclamation);
}
