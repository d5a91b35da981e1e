// The main window of the workbench. At each activation it carries out what
// the start-up or the mechanical system selection asked for.
#pragma once

#include <QMainWindow>

class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(QWidget* parent = nullptr);

    // The window side of a new document.
    void Disp_Reset();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Form_Activate();
};
