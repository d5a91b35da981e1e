#include "selection/ui/frmChecks.h"

#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "common/ui/RunGuarded.h"
#include "core/Tables.h"
#include "selection/ChecksGrid.h"
#include "selection/ui/ChecksChartView.h"
#include "selection/ui/GridView.h"

namespace {

constexpr const char* kTitle = "Engineering Checks";

// What decides the parts: the catalogue, whether a motor is chosen, and the two model texts.
std::string Parts_Key() {
    return AppPath + '\n' + std::to_string(MotorSelected) + '\n' + std::string(MotorModelText.Str()) + '\n' +
           std::string(DriverModelText.Str());
}

QString Parts_Text(const ChosenParts& parts) {
    if (MotorSelected != kMotorChosen) return "No motor chosen: choose one with Tools > Motor Selection.";
    QString text = QString("Motor %1, driver %2")
                       .arg(QString::fromStdString(MotorModelText.Utf8()), QString::fromStdString(DriverModelText.Utf8()));
    if (parts.curveSource == CurveSource::Found)
        text += QString("; curve of %1 from the catalogue").arg(QString::fromStdString(parts.curveModel));
    return text;
}

}  // namespace

frmChecks::frmChecks(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName("frmChecks");
    setWindowTitle(kTitle);
    lblParts = new QLabel(this);
    lblParts->setObjectName("lblParts");
    picChart = new ChecksChartView(this);
    picChart->setObjectName("picChart");
    vsfChecks = new GridView(kChecksColumns, this);
    vsfChecks->setObjectName("vsfChecks");
    cmdClose = new QPushButton("Close", this);
    cmdClose->setObjectName("cmdClose");

    auto* split = new QSplitter(Qt::Vertical, this);
    split->addWidget(picChart);
    split->addWidget(vsfChecks);
    split->setSizes({380, 420});
    auto* keys = new QHBoxLayout;
    keys->addStretch();
    keys->addWidget(cmdClose);
    auto* main = new QVBoxLayout(this);
    main->addWidget(lblParts);
    main->addWidget(split, 1);
    main->addLayout(keys);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    resize(960, 900);
}

void frmChecks::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Disp_Checks();
}

void frmChecks::Disp_Checks() {
    if (!isVisible()) return;
    Run_Guarded(kTitle, [this] {
        if (const std::string key = Parts_Key(); key != partsKey_) {
            parts_ = Parts_OfDocument();
            partsKey_ = key;
        }
        Checks_OfDocument(parts_, checks_);
        lblParts->setText(Parts_Text(parts_));
        picChart->Show(checks_, parts_.curve);
        vsfChecks->Show(Checks_Grid(checks_));
    });
}
