// Typing into the grids of the main window as a user does: the editor of a
// cell opened, the text typed over the old one, Enter. Shared by the window
// tests and the edit benchmark.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

#include "pattern/ui/PatarnGrid.h"
#include "tests/support/Controls.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmMain.h"

// Types into the editor of the grid's current cell and commits with Enter;
// false when no editor opened.
inline bool Type_IntoEditor(QTableWidget* grid, const QString& text) {
    QWidget* editor = grid->indexWidget(grid->currentIndex());
    auto* edit = qobject_cast<QLineEdit*>(editor);
    if (auto* combo = qobject_cast<QComboBox*>(editor)) edit = combo->lineEdit();
    if (edit == nullptr) return false;
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
    QApplication::processEvents();
    return true;
}

// A cell of the pattern grid (grid rows 2..21).
inline bool Type_PatternCell(frmMain& w, int gridRow, int col, const QString& text) {
    auto* g = Ctl<PatarnGrid>(&w, "vsfPatarn");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the previous editor goes
    g->setCurrentCell(gridRow - 2, col);
    g->editItem(g->item(gridRow - 2, col));
    return Type_IntoEditor(g, text);
}

// Opens the editor of a setting of the component settings (rows from 1).
inline QWidget* Setting_OpenEditor(const frmInfobox* box, int gridRow) {
    auto* g = Ctl<QTableWidget>(box, "vsfElement");
    g->setCurrentCell(gridRow - 1, 2);
    g->editItem(g->item(gridRow - 1, 2));
    return g->indexWidget(g->currentIndex());
}

// A setting of the component settings.
inline bool Type_Setting(const frmInfobox* box, int gridRow, const QString& text) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (Setting_OpenEditor(box, gridRow) == nullptr) return false;
    return Type_IntoEditor(Ctl<QTableWidget>(box, "vsfElement"), text);
}
