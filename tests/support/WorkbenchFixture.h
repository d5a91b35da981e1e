// The main window driven as a user drives it: the fixture of the window tests.
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "pattern/ui/PatarnGrid.h"
#include "tests/support/Controls.h"
#include "tests/support/TestState.h"
#include "tests/support/Typing.h"
#include "common/ui/FileDialog.h"
#include "workbench/frmItem.h"
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

    // Shows the start-up question; answer runs while it waits.
    static void StartAnswering(frmMain& w, std::function<void(frmMeca*)> answer) {
        w.show();
        QTimer::singleShot(0, [&w, answer = std::move(answer)] { answer(w.Meca()); });
        w.Start();
    }

    // Shows the start-up question and answers it with a picture and OK.
    static void StartWith(frmMain& w, int picture) {
        StartAnswering(w, [picture](frmMeca* m) {
            EXPECT_TRUE(m->isVisible());
            QTest::mouseClick(Ctl<QFrame>(m, "picMachine", picture), Qt::LeftButton);
            Ctl<QPushButton>(m, "cmdOK")->click();
        });
    }

    // The motor alone, with the palette open as after a manual start.
    static void StartManual(frmMain& w) {
        StartWith(w, 0);
        ASSERT_EQ(ElementCount, 1);
        ASSERT_TRUE(w.ItemWindow()->isVisible());
    }

    // A new horizontal ballscrew with one interval typed: 3000 r/min after 0.1 s.
    static void StartOneRow(frmMain& w) {
        StartWith(w, 1);
        Type(w, 2, 1, "0.1");
        Type(w, 2, 3, "3000");
    }

    // A double click on a cell of a tab of the palette.
    static void DoubleClick(frmItem* palette, int tab, int cell) {
        Ctl<QTabBar>(palette, "TabStrip1")->setCurrentIndex(tab - 1);
        QTest::mouseDClick(Ctl<QLabel>(palette, "picElement", cell), Qt::LeftButton);
        QApplication::processEvents();
    }

    // The caption under a slot of the strip.
    static QString SlotCaption(frmMain& w, int slot) { return Ctl<QLabel>(&w, "lblElement", slot)->text(); }

    // A click on a slot of the strip.
    static void ClickSlot(frmMain& w, int slot) {
        QTest::mouseClick(Ctl<QLabel>(&w, "imgElement", slot), Qt::LeftButton);
    }

    // Types a text into a cell of the pattern grid and commits it with Enter.
    static void Type(frmMain& w, int gridRow, int col, const QString& text) {
        ASSERT_TRUE(Type_PatternCell(w, gridRow, col, text)) << "no editor on row " << gridRow << " column " << col;
    }

    // A drag from another window enters a slot of the strip and is dropped there.
    static void DropOn(frmMain& w, int slot, QMimeData& data) {
        auto* target = Ctl<QLabel>(&w, "imgElement", slot);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }

    static QString Cell(frmMain& w, int gridRow, int col) {
        return Ctl<PatarnGrid>(&w, "vsfPatarn")->item(gridRow - 2, col)->text();
    }
};
