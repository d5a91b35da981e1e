// The table of the engineering checks (selection/ChecksGrid): its rows, the
// numbers in the picked units, the verdicts in the system's colours.
#include "selection/ChecksGrid.h"

#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/selection/ChecksFixture.h"
#include "units/UnitTable.h"

namespace {

class ChecksGridTest : public ChecksFixture {
protected:
    Grid Make(double peak = 12, double mean = 3) {
        Compute(peak, mean);
        return Checks_Grid(checks);
    }
    static int Find(const Grid& g, const std::string& check) {
        for (int row = kFixedRows; row < g.Rows(); ++row)
            if (g.Cell(row, 1).text == check) return row;
        return -1;
    }
};

TEST_F(ChecksGridTest, EveryIntervalHasARowWithItsVerdict) {
    const Grid g = Make();
    EXPECT_EQ(g.Cell(0, 3).text, "Needed");
    EXPECT_EQ(g.Cell(1, 2).text, "r/min");
    const int first = Find(g, "Interval 1, peak torque");
    ASSERT_EQ(first, kFixedRows);
    EXPECT_EQ(g.Cell(first, 2).text, "0 to 3000");
    EXPECT_EQ(g.Cell(first, 3).text, "2.7");
    EXPECT_EQ(g.Cell(first, 4).text, "3");
    EXPECT_EQ(g.Cell(first, 5).text, "N\u00b7m");
    EXPECT_EQ(g.Cell(first, 6).text, "10.0");
    EXPECT_EQ(g.Cell(first, 0).text, "FAIR");
    EXPECT_EQ(g.Cell(first, 0).color, kColorOrange);
    EXPECT_TRUE(g.Cell(first, 0).bold);
    EXPECT_EQ(g.Cell(first, 7).text, "");  // interval 3 is tighter
    const int second = Find(g, "Interval 2, peak torque");
    EXPECT_EQ(g.Cell(second, 2).text, "3000 to 0");
    EXPECT_EQ(g.Cell(second, 3).text, "1");  // a braking torque by its size
    EXPECT_EQ(g.Cell(second, 0).text, "OK");
    EXPECT_EQ(g.Cell(second, 0).color, kColorWindowText);
    const int third = Find(g, "Interval 3, peak torque");
    EXPECT_EQ(g.Cell(third, 0).text, "NG");
    EXPECT_EQ(g.Cell(third, 0).color, kColorRed);
    EXPECT_EQ(g.Cell(third, 6).text, "-100.0");
    EXPECT_EQ(g.Cell(third, 7).text, "above the top speed of the curve, 5000");
}

TEST_F(ChecksGridTest, NumbersFollowThePickedUnits) {
    UnitTable[UnitKind::Torque].Sel = 0;      // N mm
    UnitTable[UnitKind::MotorSpeed].Sel = 1;  // rad/s
    const Grid g = Make();
    const int first = Find(g, "Interval 1, peak torque");
    EXPECT_EQ(g.Cell(1, 2).text, "rad/s");
    EXPECT_EQ(g.Cell(first, 2).text, "0 to 314");
    EXPECT_EQ(g.Cell(first, 3).text, "2700");
    EXPECT_EQ(g.Cell(first, 4).text, "3000");
    EXPECT_EQ(g.Cell(first, 5).text, "N\u00b7mm");
}

TEST_F(ChecksGridTest, TheRegenerationRowsAndTheResistor) {
    const Grid g = Make(12, 3);
    const int energy = Find(g, "Regeneration per braking");
    EXPECT_EQ(g.Cell(energy, 3).text, "12");
    EXPECT_EQ(g.Cell(energy, 4).text, "10");
    EXPECT_EQ(g.Cell(energy, 5).text, "J");
    EXPECT_EQ(g.Cell(energy, 6).text, "-16.7");  // 2 J of 12 not absorbed
    EXPECT_EQ(g.Cell(energy, 0).text, "NG");
    EXPECT_EQ(g.Cell(energy, 7).text, "the driver cannot absorb 2 J");
    const int power = Find(g, "Mean regeneration power");
    EXPECT_EQ(g.Cell(power, 0).text, "NA");
    EXPECT_EQ(g.Cell(power, 7).text, "no limit given");
    const int resistor = Find(g, "Brake resistor, energy per braking");
    EXPECT_EQ(g.Cell(resistor, 3).text, "2.4");
    EXPECT_EQ(g.Cell(resistor, 0).text, "FAIR");
    EXPECT_EQ(g.Cell(resistor, 7).text, "needed, 20 % margin included");
    // No power limit given: the resistor takes all 3 W, 3.6 W with the margin.
    EXPECT_EQ(g.Cell(Find(g, "Brake resistor, continuous power"), 3).text, "3.6");

    const Grid fine = Make(10, 3);
    EXPECT_EQ(fine.Cell(Find(fine, "Brake resistor"), 7).text, "not needed");
    EXPECT_EQ(fine.Cell(Find(fine, "Brake resistor"), 0).text, "OK");
}

TEST_F(ChecksGridTest, WithoutACurveTheRowsSayWhy) {
    parts.curveSource = CurveSource::NoCurve;
    const Grid g = Make();
    const int first = Find(g, "Interval 1, peak torque");
    EXPECT_EQ(g.Cell(first, 0).text, "NA");
    EXPECT_EQ(g.Cell(first, 4).text, "");
    EXPECT_EQ(g.Cell(first, 7).text, "no speed-torque curve for this motor in the catalogue");
    EXPECT_EQ(g.Cell(Find(g, "Effective torque at the mean speed"), 0).text, "NA");
    parts.curveSource = CurveSource::NoTable;
    const Grid h = Make();
    EXPECT_EQ(h.Cell(Find(h, "Interval 1, peak torque"), 7).text, "the catalogue has no speed-torque curves");
}

TEST_F(ChecksGridTest, AMarkedTorqueShowsOver) {
    table[1].Torque = kOver;
    const Grid g = Make();
    const int first = Find(g, "Interval 1, peak torque");
    EXPECT_EQ(g.Cell(first, 3).text, "OVER");
    EXPECT_EQ(g.Cell(first, 0).text, "NA");
}

}  // namespace
