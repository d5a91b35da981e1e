// "Component Selection": the floating palette from which components go into
// the chain. A double click or Enter appends the component to the end of the
// chain; a drag onto a slot of the main window's strip places it there.
#pragma once

#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>

class QFrame;
class QLabel;
class QMimeData;
class QTabBar;

class frmItem : public QWidget {
    Q_OBJECT
public:
    explicit frmItem(QWidget* parent = nullptr);

    int16_t DragArmed = 0;
    int16_t PaletteFocus = 0;

    // Appends the component of the cell to the end of the chain.
    void picElement_DblClick(int index);
    // The data a drag of the cell carries: the type code under kTypeMime.
    QMimeData* DragData(int index) const;
    // Starts the drag of the data; replaced by the tests, which cannot run a
    // drag of the platform.
    std::function<void(QMimeData* data, const QPixmap& picture)> startDrag;

    // Stores the position, unless minimised, and hides the window.
    void Unload();

signals:
    // What the palette asks of the main window: repaint from the tables, delete
    // the selected component, pick list position index in the settings.
    void documentChanged();
    void deleteSelected();
    void selectInList(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void TabStrip1_Click(int tab);
    void picElement_GotFocus(int index);
    void picElement_KeyDown(int index, int key);
    void picElement_MouseMove(int index);
    void Form_Activate();
    int IndexOf(QObject* watched) const;

    QTabBar* TabStrip1 = nullptr;
    std::array<QLabel*, 10> picElement{};
    std::array<QLabel*, 10> txtElement{};
    std::array<QFrame*, 10> Shape{};

    bool firstActivation_ = true;
};
