// The texts of the pattern and results grids (pattern/GridText): headers in the picked units, rows, marks, colours.
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "pattern/GridText.h"
#include "tests/support/TestState.h"

class GridTextTest : public StateTest {};

TEST_F(GridTextTest, HeaderShowsThePickedUnitsAndFollowsTheLoadMotion) {
    const auto linear = Patarn_HeaderTexts(0);
    EXPECT_EQ(linear[1], "s");
    EXPECT_EQ(linear[2], "s");
    EXPECT_EQ(linear[3], "r/min");
    EXPECT_EQ(linear[4], "mm/s");
    EXPECT_EQ(linear[5], "mm");
    EXPECT_EQ(linear[6], "N\xB7m");
    const auto rotating = Patarn_HeaderTexts(1);
    EXPECT_EQ(rotating[4], "rad/s");
    EXPECT_EQ(rotating[5], "Degrees");
}

TEST_F(GridTextTest, ACompleteRowShowsEveryColumnInItsFormat) {
    Patarn[1] = {0.1, 0.1, 3000, 0.5, 0.025, 1.23456, 0, 3};
    const PatarnTexts t = Patarn_CellTexts(Patarn, 0);
    EXPECT_EQ(t[1][0], "1");
    EXPECT_EQ(t[1][1], "0.100");
    EXPECT_EQ(t[1][2], "0.100");
    EXPECT_EQ(t[1][3], "3000.0");
    EXPECT_EQ(t[1][4], "500.00");  // 0.5 m/s in mm/s
    EXPECT_EQ(t[1][5], "25.00");   // 0.025 m in mm
    EXPECT_EQ(t[1][6], "1.235");
    EXPECT_EQ(t[20][0], "20");
    EXPECT_EQ(t[2][1], "");
}

TEST_F(GridTextTest, TheOverMarkShowsAsOver) {
    Patarn[1] = {0.1, 0.1, 3000, 0.5, -9999, -9999, 0, 3};
    const PatarnTexts t = Patarn_CellTexts(Patarn, 0);
    EXPECT_EQ(t[1][5], "OVER");
    EXPECT_EQ(t[1][6], "OVER");
}

TEST_F(GridTextTest, TheTimeCellStaysEmptyBehindARowWithoutTime) {
    Patarn[1] = {0.1, 0.1, 0, 0, 0, 0, 0, 1};   // time but no speed
    Patarn[2] = {0, 0, 100, 0, 0, 0, 0, 2};     // speed but no time
    Patarn[3] = {0.3, 0.2, 100, 0, 0, 0, 0, 3}; // complete
    const PatarnTexts t = Patarn_CellTexts(Patarn, 0);
    EXPECT_EQ(t[1][1], "0.100");
    EXPECT_EQ(t[3][1], "");
    EXPECT_EQ(t[3][2], "0.200");
    EXPECT_EQ(t[3][3], "100.0");
    EXPECT_EQ(t[3][5], "");
    EXPECT_EQ(t[3][6], "");
}

TEST_F(GridTextTest, ResultsWithoutAMotorFillOnlyTheCalculatedColumn) {
    ResultValues[Cul] = {1.5, 3.0, 3000, 0.0001234, 5, -9999, 0.5};
    ResultValues[Rate] = {2, 4, 3000, 0.001, 10, 20, 1};
    const auto rows = Result_Texts(0);
    EXPECT_EQ(rows[0].label, "Effective torque");
    EXPECT_EQ(rows[0].calculated, "1.5");
    EXPECT_EQ(rows[1].calculated, "0.5");
    EXPECT_EQ(rows[2].calculated, "3");
    EXPECT_EQ(rows[3].calculated, "1.234E-4");
    EXPECT_EQ(rows[4].calculated, "3000");
    EXPECT_EQ(rows[5].unit, "J(max.)");
    EXPECT_EQ(rows[6].unit, "W");
    EXPECT_EQ(rows[6].calculated, "OVER");
    EXPECT_EQ(rows[0].rating, "");
    EXPECT_EQ(rows[0].ratio, "");
}

TEST_F(GridTextTest, RatingGuardsOfRowsTwoFourAndFiveTestOtherValues) {
    ResultValues[Cul] = {1, 1, 1000, 0.001, 1, 1, 1};
    ResultValues[Rate] = {0, 4, 3000, 0.002, 10, 20, 2};  // no effective torque rating
    ResultValues[Ratio] = {0, 0.25, 0.333, 0.5, 0.1, 0.05, 0.5};
    auto rows = Result_Texts(1);
    EXPECT_EQ(rows[1].rating, "");  // stopping torque tests the effective torque's rating
    EXPECT_EQ(rows[1].ratio, "");
    EXPECT_EQ(rows[3].rating, "2.0E-3");
    EXPECT_EQ(rows[4].rating, "3000");
    ResultValues[Rate][MaxRotationalSpeed] = 0;
    rows = Result_Texts(1);
    EXPECT_EQ(rows[3].rating, "");      // inertia tests the speed's rating
    EXPECT_EQ(rows[4].rating, "0");     // speed tests the inertia's rating
    EXPECT_EQ(rows[4].ratio, "");
    EXPECT_EQ(rows[3].ratio, "0.50");
}

TEST_F(GridTextTest, RatioColoursByVerdict) {
    ResultValues[Rate] = {1, 1, 1, 1, 1, 1, 1};
    auto& code = ResultValues[Hantei];
    code[EffectiveTorque] = 3;
    code[StoppingTorque] = 2;
    code[MaxTorque] = 1;
    code[Inertia] = 2;
    code[MaxRotationalSpeed] = 3;
    code[Regeneration1] = 1;
    code[Regeneration2] = 0;
    const auto rows = Result_Texts(1);
    EXPECT_EQ(rows[0].ratioColour, CellColour::Red);
    EXPECT_EQ(rows[1].ratioColour, CellColour::Orange);      // rows 1 to 3: FAIR is orange
    EXPECT_EQ(rows[2].ratioColour, CellColour::WindowText);
    EXPECT_EQ(rows[3].ratioColour, CellColour::Unchanged);   // rows 4 to 7: FAIR keeps the colour
    EXPECT_EQ(rows[4].ratioColour, CellColour::Red);
    EXPECT_EQ(rows[5].ratioColour, CellColour::WindowText);
    EXPECT_EQ(rows[6].ratioColour, CellColour::WindowText);
}

TEST_F(GridTextTest, OverInTheEffectiveTorqueRatio) {
    ResultValues[Rate][EffectiveTorque] = 1;
    ResultValues[Ratio][EffectiveTorque] = -9999;
    EXPECT_EQ(Result_Texts(1)[0].ratio, "OVER");
}
