#include "workbench/frmAbout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "persist/mdlFile.h"

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName("frmAbout");
    setWindowTitle("About thie Program");
    setModal(true);
    lblTitle = new QLabel("Torvane", this);
    lblTitle->setObjectName("lblTitle");
    QFont big = lblTitle->font();
    big.setPointSizeF(big.pointSizeF() * 1.8);
    big.setBold(true);
    lblTitle->setFont(big);
    lblVersion = new QLabel(QString::fromStdString(File_VersionText()), this);
    lblVersion->setObjectName("lblVersion");
    cmdOK = new QPushButton("OK", this);
    cmdOK->setObjectName("cmdOK");
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* main = new QVBoxLayout(this);
    main->addWidget(lblTitle);
    main->addWidget(lblVersion);
    main->addSpacing(12);
    main->addLayout(buttons);
}
