#include "selection/ui/frmRecommend.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "selection/RecommendGrid.h"
#include "selection/ui/GridView.h"

frmRecommend::frmRecommend(const RecommendResult& result, QWidget* parent) : QDialog(parent) {
    setObjectName("frmRecommend");
    setWindowTitle(QString::fromUtf8(kTitleRecommend));
    setModal(true);

    auto* lblPairs = new QLabel("The best motor and driver pairs of the catalogue, the smallest motor first.", this);
    vsfPairs = new GridView(kRecommendColumns, this);
    vsfPairs->setObjectName("vsfPairs");
    lblPairs->setBuddy(vsfPairs);
    lblSkipped = new QLabel(this);
    lblSkipped->setObjectName("lblSkipped");
    if (result.skipped > 0)
        lblSkipped->setText(QString("%1 catalogue rows could not be judged and were left out.").arg(result.skipped));
    lblSkipped->setVisible(result.skipped > 0);
    cmdOK = new QPushButton("OK", this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    cmdOK->setEnabled(!result.pairs.empty());
    CmdCancel = new QPushButton("Cancel", this);
    CmdCancel->setObjectName("CmdCancel");

    auto* keys = new QHBoxLayout;
    keys->addWidget(lblSkipped);
    keys->addStretch();
    keys->addWidget(cmdOK);
    keys->addWidget(CmdCancel);
    auto* main = new QVBoxLayout(this);
    main->addWidget(lblPairs);
    main->addWidget(vsfPairs, 1);
    main->addLayout(keys);

    vsfPairs->Show(Recommend_Grid(result.pairs));
    vsfPairs->SetGridRow(kFixedRows);
    // Ten pairs show without scrolling.
    vsfPairs->setMinimumHeight(vsfPairs->horizontalHeader()->sizeHint().height() +
                               10 * vsfPairs->verticalHeader()->defaultSectionSize() + 2 * vsfPairs->frameWidth());
    connect(vsfPairs, &QTableWidget::cellDoubleClicked, this, [this](int row) { Choose(row + kFixedRows); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { Choose(vsfPairs->GridRow()); });
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    resize(1000, sizeHint().height());
}

void frmRecommend::Choose(int gridRow) {
    if (gridRow < kFixedRows) return;
    chosen_ = gridRow - kFixedRows;
    accept();
}
