// "Component Settings": the floating window in which the rows of one element
// of the chain are edited. cboElement lists the elements, vsfElement shows the
// fourteen rows of the selected one, Check1 and Check2 switch its direct
// inputs. Every accepted edit is stored, recalculated and redrawn at once.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

class QCheckBox;
class QComboBox;
class QTableWidget;

class frmInfobox : public QWidget {
    Q_OBJECT
public:
    // refresh: the main window's Disp_Refresh; selected: the element became
    // the selected one, so the strip shows and highlights it.
    explicit frmInfobox(QWidget* parent = nullptr);
    ~frmInfobox() override;

    int16_t LastGridRow = 1;
    int16_t InternalEdit = 0;

    // Selects list position index of cboElement, as a click on it does.
    void cboElement_Select(int index);
    void cboElement_click();
    // Fills the grid from the element's rows; the current cell becomes row 1, column 2.
    void Infobox_Fill(int16_t element);
    // Empties the grid and the element list.
    void Infobox_Clear();
    // The element list of the chain, with the selected element shown.
    void Disp_ElementList();
    // The rows of the selected element rewritten from their values and shown.
    void Disp_Selected();

    // The grid row (1..14) of the current cell.
    int GridRow() const;
    // The text of a cell by grid row (1..14) and column.
    QString CellText(int gridRow, int col) const;
    bool RowGrey(int gridRow) const;

    // Stores the position, unless minimised, and hides the window.
    void Unload();

    void Check1_Click();
    void Check2_Click();

signals:
    // The document changed: the main window repaints from the tables.
    void documentChanged();
    // Another element was picked from the list: the strip shows it.
    void elementPicked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    friend class InfoboxCellEditor;
    void Check_Set(int16_t type, int16_t mode);
    void Grid_Clear();
    void Restore_Row(int gridRow);
    void Direct_Toggled(int16_t mode, const std::function<void()>& toggle, int row);
    bool AfterEdit(int gridRow, QString& text);

    QComboBox* cboElement = nullptr;
    QTableWidget* vsfElement = nullptr;
    QCheckBox* Check1 = nullptr;
    QCheckBox* Check2 = nullptr;

    bool storing_ = false;  // an edit is being stored
};
