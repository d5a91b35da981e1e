#include "workbench/frmMain.h"

#include <QEvent>

#include "base/MsgBox.h"
#include "base/RuntimeError.h"
#include "core/Activation.h"

frmMain::frmMain(QWidget* parent) : QMainWindow(parent) {
    setObjectName("frmMain");
    resize(800, 600);
    Disp_Reset();
}

void frmMain::Disp_Reset() { setWindowTitle("Torvane-[Create application]"); }

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
}

void frmMain::Form_Activate() {
    ActivationSeams seams;
    seams.resetDisplay = [this] { Disp_Reset(); };
    seams.setTitle = [this](const std::string& t) { setWindowTitle(QString::fromStdString(t)); };
    try {
        Main_Activate(seams);
    } catch (const RuntimeError& e) {
        MsgBox(e.what(), "Torvane", MsgIcon::Critical);
    }
}
