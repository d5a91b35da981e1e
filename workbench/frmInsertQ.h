// "Insert／Overwrite": the question asked when a component dropped on the
// strip may go either before the component in the slot or in its place.
#pragma once

#include <QDialog>
#include <cstdint>

#include "base/MsgBox.h"

class QPushButton;

class frmInsertQ : public QDialog {
    Q_OBJECT
public:
    explicit frmInsertQ(QWidget* parent = nullptr);

    // Asks, and gives the answer as MsgBox gives it.
    static MsgAnswer Ask(QWidget* parent);

private:
    QPushButton* cmdInsert = nullptr;
    QPushButton* cmdUpdate = nullptr;
    QPushButton* Command1 = nullptr;

    // 1 insert, 2 overwrite, -1 cancel (also when the window is closed).
    int16_t Answer = -1;
};
