// "Mechanical System Selection": the first question of a new document.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

class QFrame;
class QLabel;
class QPushButton;

class frmMeca : public QDialog {
    Q_OBJECT
public:
    // confirmed runs after OK hid the window (the reset of the document).
    explicit frmMeca(QWidget* parent = nullptr);

    void cmdOK_Click();
    void CmdCancel_Click();

signals:
    // OK took an answer: the main window starts the new document.
    void confirmed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void reject() override;

private:
    void picMachine_GotFocus(int index);
    void picMachine_KeyDown(int index, int key);
    void SetLook(int index, bool selected);
    void ShowShape2(bool visible);
    int IndexOf(QObject* watched) const;

    std::array<QFrame*, 12> picMachine{};
    std::array<QLabel*, 12> lblMachine{};
    QFrame* Shape2 = nullptr;
    QLabel* lblHandSelect = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* CmdCancel = nullptr;

    std::array<bool, 12> hasPicture_{};
    bool skipFocus_ = false;
};
