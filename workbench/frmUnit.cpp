#include "workbench/frmUnit.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "common/ui/Cp1252Text.h"
#include "common/ui/QtSettingsStore.h"

frmUnit::frmUnit(QWidget* parent) : QDialog(parent) {
    setObjectName("frmUnit");
    setWindowTitle("Unit Selections");
    auto* frames = new QGridLayout;
    for (int k = 0; k < kUnitCategories; ++k) {
        auto* frame = new QGroupBox(kUnitCaptions[k], this);
        auto* column = new QVBoxLayout(frame);
        options[k] = new QButtonGroup(this);
        options[k]->setObjectName(QString("options%1").arg(k));
        for (int i = 0; i < Unit_Count(k); ++i) {
            auto* option = new QRadioButton(Cp1252_ToQString(UnitTable[k].Names[i]), frame);
            options[k]->addButton(option, i);
            column->addWidget(option);
        }
        column->addStretch();
        connect(options[k], &QButtonGroup::idClicked, this, [this] { cmdReNew->setEnabled(true); });
        frames->addWidget(frame, k / 4, k % 4);
    }
    frames->addWidget(new QLabel("(SI Units)", this), 2, 3, Qt::AlignBottom | Qt::AlignRight);

    cmdStartSet = new QPushButton("Defaults", this);
    cmdStartSet->setObjectName("cmdStartSet");
    cmdReNew = new QPushButton("Apply(&A)", this);
    cmdReNew->setObjectName("cmdReNew");
    cmdOK = new QPushButton("OK(&Y)", this);
    cmdOK->setObjectName("cmdOK");
    CmdCancel = new QPushButton("Cancel", this);
    CmdCancel->setObjectName("CmdCancel");
    cmdOK->setDefault(true);
    connect(cmdStartSet, &QPushButton::clicked, this, &frmUnit::cmdStartSet_Click);
    connect(cmdReNew, &QPushButton::clicked, this, &frmUnit::cmdReNew_Click);
    connect(cmdOK, &QPushButton::clicked, this, [this] {
        cmdReNew_Click();
        close();
    });
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdStartSet);
    buttons->addStretch();
    for (QPushButton* b : {cmdReNew, cmdOK, CmdCancel}) buttons->addWidget(b);
    auto* main = new QVBoxLayout(this);
    main->addLayout(frames);
    main->addLayout(buttons);
    Window_Load(this, kUnitWindowKeys);
}

void frmUnit::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Form_Load();
}

void frmUnit::done(int result) {
    Window_Store(this, kUnitWindowKeys);
    QDialog::done(result);
}

void frmUnit::Form_Load() {
    Show_Picks(Unit_Picks());
    cmdReNew->setEnabled(false);
}

void frmUnit::Show_Picks(const UnitPicks& picks) {
    for (int k = 0; k < kUnitCategories; ++k)
        if (QAbstractButton* b = options[k]->button(picks[k])) b->setChecked(true);
}

// Setting the buttons counts as clicking them: "Apply" can take the defaults on.
void frmUnit::cmdStartSet_Click() {
    Show_Picks(kUnitDefaultSel);
    cmdReNew->setEnabled(true);
}

void frmUnit::cmdReNew_Click() {
    UnitPicks picks{};
    for (int k = 0; k < kUnitCategories; ++k) picks[k] = static_cast<int16_t>(std::max(0, options[k]->checkedId()));
    Unit_Apply(picks);
    emit applied();
    cmdReNew->setEnabled(false);
}
