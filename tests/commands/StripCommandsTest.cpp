// The chain strip without its window: selection by click and arrow keys,
// and which part of the chain the strip shows.
#include "commands/StripCommands.h"

#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

class StripCommandsTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        Chain_Set({51, 1, 1, 1, 1, 1, 1, 1, 1, 1, 11, 31});  // twelve elements: more than the strip shows
    }
};

TEST_F(StripCommandsTest, AClickSelectsTheComponentInTheSlot) {
    Strip_Scroll(3);
    Strip_Click(2);
    EXPECT_EQ(SelectedElement, 5);
    EXPECT_EQ(FirstVisible, 3);
}

TEST_F(StripCommandsTest, AClickOnTheMotorOrAnEmptySlotSelectsNothing) {
    SelectedElement = 4;
    Strip_Click(0);
    EXPECT_EQ(SelectedElement, 0);
    SelectedElement = 4;
    Strip_Scroll(6);
    Strip_Click(7);  // element 13 does not exist
    EXPECT_EQ(SelectedElement, 0);
}

TEST_F(StripCommandsTest, TheSelectedSlotIsWhereTheSelectedElementShows) {
    SelectedElement = 9;
    EXPECT_EQ(Strip_SelectedSlot(2), 7);
    EXPECT_EQ(Strip_SelectedSlot(1), -1);  // beyond the eighth slot
    EXPECT_EQ(Strip_SelectedSlot(10), -1);
    SelectedElement = 0;
    EXPECT_EQ(Strip_SelectedSlot(0), -1);
}

TEST_F(StripCommandsTest, TheStripScrollsJustFarEnoughToShowTheSelection) {
    SelectedElement = 11;
    EXPECT_EQ(Strip_FirstShowing(0), 4);
    SelectedElement = 2;
    EXPECT_EQ(Strip_FirstShowing(4), 2);
    SelectedElement = 6;
    EXPECT_EQ(Strip_FirstShowing(3), 3);
}

TEST_F(StripCommandsTest, ArrowsWalkTheComponentsAndStopAtTheEnds) {
    SelectedElement = 2;
    EXPECT_FALSE(Strip_Left());
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_TRUE(Strip_Left());  // on the first component the strip scrolls home
    EXPECT_EQ(SelectedElement, 1);
    SelectedElement = 10;
    Strip_Right();
    EXPECT_EQ(SelectedElement, 11);
    Strip_Right();
    EXPECT_EQ(SelectedElement, 11);
}

}  // namespace
