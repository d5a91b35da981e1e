// The main window driven as a user drives it: the fixture of the window tests.
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "pattern/ui/PatarnGrid.h"
#include "tests/support/TestState.h"
#include "common/ui/FileDialog.h"
#include "workbench/frmMain.h"
#include "workbench/frmMeca.h"

class WorkbenchTest : public StateTest {
protected:
    // The windows draw the pictures the program carries beside it.
    void SetUp() override {
        StateTest::SetUp();
        std::filesystem::copy(TORVANE_SOURCE_DIR "/data/app/BMP_data", AppPath + "/BMP_data",
                              std::filesystem::copy_options::recursive);
    }

    void TearDown() override {
        FileDialog_Script({});
        StateTest::TearDown();
    }

    // Shows the start-up question and answers it with a picture and OK.
    void StartWith(frmMain& w, int picture) {
        w.show();
        QTimer::singleShot(0, [&w, picture] {
            frmMeca* m = w.Meca();
            EXPECT_TRUE(m->isVisible());
            QTest::mouseClick(m->picMachine[picture], Qt::LeftButton);
            m->cmdOK->click();
        });
        w.Start();
    }

    // Types a text into a cell of the pattern grid and commits it with Enter.
    static void Type(frmMain& w, int gridRow, int col, const QString& text) {
        PatarnGrid* g = w.vsfPatarn;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the previous editor goes
        g->setCurrentCell(gridRow - 2, col);
        g->editItem(g->item(gridRow - 2, col));
        auto* edit = qobject_cast<QLineEdit*>(g->indexWidget(g->currentIndex()));
        ASSERT_NE(edit, nullptr);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        QApplication::processEvents();
    }

    // A drag from another window enters the slot and is dropped there.
    static void DropOn(QWidget* target, QMimeData& data) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }

    static QString Cell(frmMain& w, int gridRow, int col) { return w.vsfPatarn->item(gridRow - 2, col)->text(); }
};
