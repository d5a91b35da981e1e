// "About thie Program": the title and the version.
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent = nullptr);

private:
    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QPushButton* cmdOK = nullptr;
};
