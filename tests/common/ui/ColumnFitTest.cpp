// The columns of a grid: the layout's proportions over the grid's width, a
// column widened to show its texts whole with the room taken from the
// others, and the whole text under the pointer where it still cannot fit.
#include <QApplication>
#include <QHeaderView>
#include <QTableWidget>
#include <gtest/gtest.h>

#include <numeric>

#include "common/ui/ClippedTips.h"
#include "common/ui/ColumnFit.h"
#include "tests/support/TipAt.h"

namespace {

int Sum(const std::vector<int>& v) { return std::accumulate(v.begin(), v.end(), 0); }

const std::vector<int> kThree = {1500, 1500, 1500};  // 100 pixels each at full scale

TEST(ColumnWidths, WithoutNeedsTheLayoutsProportionsFillTheRoom) {
    EXPECT_EQ(Column_Widths({1500, 3000}, {}, 300), (std::vector<int>{100, 200}));
    EXPECT_EQ(Column_Widths({1500, 3000}, {0, 0}, 600), (std::vector<int>{200, 400}));
    EXPECT_EQ(Sum(Column_Widths({1000, 1100, 1300}, {}, 317)), 317);  // the last takes what rounding left
}

TEST(ColumnWidths, NeedsWithinTheirShareChangeNothing) {
    EXPECT_EQ(Column_Widths(kThree, {50, 100, 80}, 300), (std::vector<int>{100, 100, 100}));
}

TEST(ColumnWidths, AColumnNeedingMoreTakesItFromTheOthersInProportion) {
    EXPECT_EQ(Column_Widths(kThree, {0, 130, 0}, 300), (std::vector<int>{85, 130, 85}));
    EXPECT_EQ(Column_Widths({1500, 1500, 3000}, {0, 160, 0}, 400), (std::vector<int>{80, 160, 160}));
}

TEST(ColumnWidths, TheOthersGiveAtMostDownToWhatTheirOwnTextsNeed) {
    EXPECT_EQ(Column_Widths(kThree, {90, 130, 0}, 300), (std::vector<int>{92, 130, 78}));
}

TEST(ColumnWidths, NeedsBeyondTheRoomAreCutBackSoThatTheGridStaysWithinIt) {
    // 70 pixels is the narrowest of 1500 twips: first the third column gives
    // its 30, then all give in proportion to what they have above 70.
    EXPECT_EQ(Column_Widths(kThree, {90, 250, 0}, 300), (std::vector<int>{79, 151, 70}));
    EXPECT_EQ(Sum(Column_Widths(kThree, {0, 0, 1000}, 300)), 300);
}

TEST(ColumnWidths, ARoomBelowTheNarrowestKeepsTheNarrowestLayout) {
    EXPECT_EQ(Column_Widths(kThree, {}, 150), (std::vector<int>{70, 70, 70}));
}

TEST(ColumnWidths, NoColumnsNoWidths) { EXPECT_TRUE(Column_Widths({}, {}, 300).empty()); }

// A grid of three columns of 1500 twips, 300 pixels wide inside.
class FittedGrid : public ::testing::Test {
protected:
    FittedGrid() : grid(2, 3) {
        grid.setHorizontalHeaderLabels({"A", "B", "C"});
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 3; ++c) grid.setItem(r, c, new QTableWidgetItem("1"));
        new ColumnFit(&grid, kThree);
        grid.show();
        grid.resize(300 + grid.width() - grid.viewport()->width(), 200);
        QApplication::processEvents();
    }

    QString CellTip(int row, int col) {
        return Tip_At(grid.viewport(), grid.visualRect(grid.model()->index(row, col)).center());
    }

    QTableWidget grid;
};

TEST_F(FittedGrid, ALongerTextWidensItsColumnAndShowsWhole) {
    ASSERT_EQ(grid.viewport()->width(), 300);
    EXPECT_EQ(grid.columnWidth(1), 100);
    grid.item(1, 1)->setText("kg·m²(GD2/4) kg");
    QApplication::processEvents();
    const int need = static_cast<const QAbstractItemView&>(grid).sizeHintForColumn(1);
    ASSERT_GT(need, 100);
    ASSERT_LE(need, 160);  // what the other two can give
    EXPECT_EQ(grid.columnWidth(1), need);
    EXPECT_LE(grid.columnWidth(0) + grid.columnWidth(1) + grid.columnWidth(2), 300);
    EXPECT_FALSE(Cell_Clipped(&grid, grid.model()->index(1, 1)));
    EXPECT_EQ(CellTip(1, 1), "");  // whole: no tip
}

TEST_F(FittedGrid, AShorterTextGivesTheRoomBack) {
    grid.item(1, 1)->setText("kg·m²(GD2/4) kg");
    QApplication::processEvents();
    ASSERT_GT(grid.columnWidth(1), 100);
    grid.item(1, 1)->setText("1");
    QApplication::processEvents();
    EXPECT_EQ(grid.columnWidth(1), 100);
}

TEST_F(FittedGrid, ATextTooLongForAnyWidthShowsWholeUnderThePointer) {
    const QString comment = QString("Connect an external regeneration resistor ").repeated(4);
    grid.item(0, 2)->setText(comment);
    QApplication::processEvents();
    EXPECT_TRUE(Cell_Clipped(&grid, grid.model()->index(0, 2)));
    EXPECT_EQ(CellTip(0, 2), comment);
    EXPECT_EQ(CellTip(0, 0), "");
}

TEST_F(FittedGrid, ACellsOwnTipIsKept) {
    grid.item(0, 2)->setText(QString("x").repeated(400));
    grid.item(0, 2)->setToolTip("its own");
    QApplication::processEvents();
    EXPECT_EQ(CellTip(0, 2), "its own");
}

TEST_F(FittedGrid, AHeaderCutShortShowsWholeUnderThePointer) {
    const QString caption = QString("External regeneration comment ").repeated(6);
    grid.setHorizontalHeaderItem(2, new QTableWidgetItem(caption));
    QApplication::processEvents();
    QHeaderView* header = grid.horizontalHeader();
    ASSERT_TRUE(Header_Clipped(header, 2));
    const QPoint inSection(header->sectionViewportPosition(2) + 5, header->height() / 2);
    EXPECT_EQ(Tip_At(header->viewport(), inSection), caption);
    EXPECT_EQ(Tip_At(header->viewport(), QPoint(5, header->height() / 2)), "");
}

}  // namespace
