// An edit of a pattern cell (pattern/PatarnCell): which cells edit, the keys, the cut and the checks of the values.
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "pattern/PatarnCell.h"
#include "tests/support/TestState.h"

class PatarnCellTest : public StateTest {};

TEST_F(PatarnCellTest, LoadSpeedIsTestedWithTwoDecimalsAndCutAtOne) {
    EXPECT_EQ(Patarn_Trim(4, "12.34"), "12.34");
    EXPECT_EQ(Patarn_Trim(4, "12.345"), "12.30");
}

TEST_F(PatarnCellTest, SpeedAndTimeAreCutNeverRounded) {
    EXPECT_EQ(Patarn_Trim(3, "1000.06"), "1000.0");
    EXPECT_EQ(Patarn_Trim(1, "1.23456"), "1.234");
    EXPECT_EQ(Patarn_Trim(2, "0.0999"), "0.099");
    EXPECT_EQ(Patarn_Trim(5, "-2.349"), "-2.34");
    EXPECT_EQ(Patarn_Trim(3, "5"), "5.0");
}

TEST_F(PatarnCellTest, TorqueNeverEditsAndPositionOnlyAfterACompleteRow) {
    EXPECT_FALSE(Patarn_MayEdit(2, 6));
    EXPECT_TRUE(Patarn_MayEdit(2, 5));
    EXPECT_FALSE(Patarn_MayEdit(3, 5));
    Patarn[1].RowState = 3;
    Patarn[2].RowState = 1;
    EXPECT_TRUE(Patarn_MayEdit(3, 5));
    Patarn[1].RowState = 1;
    EXPECT_FALSE(Patarn_MayEdit(3, 5));
    EXPECT_TRUE(Patarn_MayEdit(5, 1));
    EXPECT_TRUE(Patarn_MayEdit(5, 3));
}

TEST_F(PatarnCellTest, KeyFilter) {
    for (const char c : std::string("0123456789-.,")) EXPECT_TRUE(Patarn_KeyAllowed(c));
    EXPECT_TRUE(Patarn_KeyAllowed(8));
    EXPECT_TRUE(Patarn_KeyAllowed(13));
    EXPECT_FALSE(Patarn_KeyAllowed('a'));
    EXPECT_FALSE(Patarn_KeyAllowed('+'));
    EXPECT_FALSE(Patarn_KeyAllowed(' '));
}

TEST_F(PatarnCellTest, EmptyOrNonNumericTextPassesWithoutAMessage) {
    EXPECT_FALSE(Patarn_Validate(2, 1, "", "", 0).cancel);
    EXPECT_FALSE(Patarn_Validate(2, 1, "1-2", "", 0).cancel);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatarnCellTest, EscapeCancelsWithoutAMessage) {
    EXPECT_TRUE(Patarn_Validate(2, 2, "-1", "", 1).cancel);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatarnCellTest, TimeMustGrowAndBePositive) {
    const CellCheck zero = Patarn_Validate(2, 1, "0", "", 0);
    EXPECT_TRUE(zero.cancel);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Illegal input value.");
    EXPECT_EQ(msg.Seen()[0].title, "Operating Pattern");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    Patarn[1].RowState = 3;
    EXPECT_TRUE(Patarn_Validate(3, 1, "0.5", "0.500", 0).cancel);
    EXPECT_FALSE(Patarn_Validate(3, 1, "0.6", "0.500", 0).cancel);
}

TEST_F(PatarnCellTest, TimeAfterARowWithoutTimeIsDroppedSilently) {
    Patarn[1].RowState = 2;
    EXPECT_TRUE(Patarn_Validate(3, 1, "5", "", 0).cancel);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(PatarnCellTest, IntervalMustBePositive) {
    EXPECT_TRUE(Patarn_Validate(2, 2, "0", "", 0).cancel);
    EXPECT_FALSE(Patarn_Validate(2, 2, "0.1", "", 0).cancel);
}

TEST_F(PatarnCellTest, NegativeSpeedsAreValid) {
    EXPECT_FALSE(Patarn_Validate(2, 3, "-3000", "", 0).cancel);
    EXPECT_FALSE(Patarn_Validate(2, 4, "-12.5", "", 0).cancel);
}

TEST_F(PatarnCellTest, PositionEqualToThePreviousIsRefusedUnlessBothSpeedsAreZero) {
    Patarn[1].RowState = 3;
    Patarn[1].Speed = 100;
    Patarn[2].RowState = 3;
    Patarn[2].Speed = 100;
    EXPECT_TRUE(Patarn_Validate(3, 5, "10.00", "10.00", 0).cancel);
    EXPECT_FALSE(Patarn_Validate(3, 5, "10.01", "10.00", 0).cancel);
    Patarn[1].Speed = 0;
    Patarn[2].Speed = 0;
    msg.Clear();
    EXPECT_FALSE(Patarn_Validate(3, 5, "10.00", "10.00", 0).cancel);
    EXPECT_TRUE(Patarn_Validate(3, 5, "10.01", "10.00", 0).cancel);
    EXPECT_EQ(msg.Seen().size(), 1u);
}

TEST_F(PatarnCellTest, PositionFallsWhenTheSpeedsRunBackward) {
    Patarn[1].RowState = 3;
    Patarn[1].Speed = -100;
    Patarn[2].RowState = 2;
    Patarn[2].Speed = -50;
    EXPECT_TRUE(Patarn_Validate(3, 5, "5", "4", 0).cancel);
    EXPECT_FALSE(Patarn_Validate(3, 5, "3", "4", 0).cancel);
}

TEST_F(PatarnCellTest, PositionOfARowWithTimeOnlyTakesAnyValue) {
    Patarn[1].RowState = 3;
    Patarn[2].RowState = 1;
    EXPECT_FALSE(Patarn_Validate(3, 5, "-7", "4", 0).cancel);
}

TEST_F(PatarnCellTest, PositionIsRefusedOnAnEmptyRow) {
    EXPECT_TRUE(Patarn_Validate(2, 5, "1", "", 0).cancel);
    EXPECT_EQ(Patarn[0].RowState, 3);
}
