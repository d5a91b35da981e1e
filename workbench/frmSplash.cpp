#include "workbench/frmSplash.h"

#include <QLabel>
#include <QVBoxLayout>

#include "base/Version.h"

frmSplash::frmSplash(QWidget* parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName("frmSplash");
    auto* layout = new QVBoxLayout(this);
    auto* title = new QLabel("Torvane", this);
    QFont font = title->font();
    font.setPointSize(28);
    font.setBold(true);
    title->setFont(font);
    layout->addWidget(title, 0, Qt::AlignCenter);
    layout->addWidget(new QLabel("Servo drive sizing", this), 0, Qt::AlignCenter);
    layout->addWidget(new QLabel(QString("Version %1").arg(kVersionText), this), 0, Qt::AlignCenter);
    setFixedSize(360, 200);
    setStyleSheet("frmSplash { background: #1f3a5f; } QLabel { color: white; }");
}
