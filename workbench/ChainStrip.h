// The chain strip of the main window: eight visible slots with the picture
// and caption of each element, the selection frame, and HScroll1 under them.
// It accepts drops of anything that carries a component type code.
#pragma once

#include <QWidget>
#include <array>

#include "commands/StripCommands.h"

class QLabel;
class QFrame;
class QScrollBar;

inline constexpr const char* kTypeMime = "application/x-torvane-type";

class ChainStrip : public QWidget {
    Q_OBJECT
public:
    explicit ChainStrip(QWidget* parent = nullptr);

    // Shows the elements first .. first + kStripSlots - 1.
    void Disp_Strip(int first);
    // Where HScroll1 stands, and moving it there (which tells scrolled).
    int First() const;
    void ScrollTo(int first);
    // The looks of a slot.
    void SetSelectedLook(int slot, bool selected);
    void ClearLooks();

signals:
    void slotClicked(int slot);                        // imgElement_Click
    void slotRightClicked(int slot, QPoint global);
    void typeDropped(int slot, int type);              // a component type dropped on a slot
    void scrolled(int value);                          // HScroll1 changed

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int SlotOf(QObject* watched) const;

    std::array<QLabel*, kStripSlots> imgElement{};
    std::array<QLabel*, kStripSlots> lblElement{};
    std::array<QFrame*, kStripSlots> Shape1{};
    QScrollBar* HScroll1 = nullptr;
};
