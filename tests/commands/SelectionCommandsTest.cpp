// What "Motor Selection" asks before the wizard opens.
#include "commands/SelectionCommands.h"

#include <gtest/gtest.h>

#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

class SelectionCommandsTest : public StateTest {};

TEST_F(SelectionCommandsTest, WithoutACompletePatternRowTheWizardMayNotOpen) {
    PatternRowCount = 0;
    EXPECT_FALSE(MotorSelection_MayOpen());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Motor cannot be selected because operating pattern is not input.");
    EXPECT_EQ(msg.Seen()[0].title, "");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
}

TEST_F(SelectionCommandsTest, WithAPatternItMaySilently) {
    PatternRowCount = 1;
    EXPECT_TRUE(MotorSelection_MayOpen());
    EXPECT_TRUE(msg.Seen().empty());
}

}  // namespace
