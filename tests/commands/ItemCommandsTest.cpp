// The palette's append and the commands of the component settings, with the
// calculation that follows them.
#include <gtest/gtest.h>

#include <string>

#include "calc/mdlCulcurate.h"
#include "commands/ChainCommands.h"
#include "commands/ItemCommands.h"
#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

class ItemCommandsTest : public StateTest {};

TEST_F(ItemCommandsTest, AppendPutsTheComponentAtTheEnd) {
    ASSERT_TRUE(Chain_Append(1));
    ASSERT_TRUE(Chain_Append(11));
    ASSERT_TRUE(Chain_Append(31));
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(Element[3].Item[0].ItemName.Str(), "Workpiece mass");
    EXPECT_EQ(SelectedElement, 3);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_GT(LoadInertiaTotal, 0);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ItemCommandsTest, AppendingToTwentyElementsCannotBeConnected) {
    for (int i = 1; i < 20; ++i) ASSERT_TRUE(Chain_Append(1)) << i;
    ASSERT_EQ(ElementCount, 20);
    DirtyFlag = 0;
    EXPECT_FALSE(Chain_Append(1));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Cannot be connected.");
    EXPECT_EQ(msg.Seen()[0].title, "Connection");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(ElementCount, 20);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(ItemCommandsTest, AppendingBehindALinearLoadOfTheWrongKindIsRefused) {
    ASSERT_TRUE(Chain_Append(11));
    ASSERT_TRUE(Chain_Append(31));
    EXPECT_FALSE(Chain_Append(1));
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(msg.Seen().back().text, "Cannot be connected.");
}

TEST_F(ItemCommandsTest, AnEditIsStoredAndRecalculated) {
    ASSERT_TRUE(Chain_Append(5));
    const double before = LoadInertiaTotal;
    std::string t = "400";  // outer diameter, mm
    ASSERT_TRUE(Item_Edit(1, 1, t, false));
    EXPECT_DOUBLE_EQ(Element[1].Item[0].Value, 0.4);
    EXPECT_GT(LoadInertiaTotal, before);
}

TEST_F(ItemCommandsTest, ARefusedEditChangesNothing) {
    ASSERT_TRUE(Chain_Append(5));
    DirtyFlag = 0;
    const ElementRecord before = Element[1];
    std::string t = "0";
    EXPECT_FALSE(Item_Edit(1, 1, t, false));
    EXPECT_EQ(Element[1].Item[0].Value, before.Item[0].Value);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(ItemCommandsTest, TheDirectInertiaDrivesTheLoadInertia) {
    ASSERT_TRUE(Chain_Append(5));
    DirtyFlag = 0;
    Item_DirectInertia(1, true);
    EXPECT_EQ(DirtyFlag, 0);
    std::string t = "500";
    ASSERT_TRUE(Item_Edit(1, 14, t, true));
    Culcurate_All();
    EXPECT_NEAR(Element[1].Item[13].Value, Element[1].DirectValue, 1e-12);
    Item_DirectInertia(1, false);
    EXPECT_EQ(Element[1].InputMode, 0);
}

TEST_F(ItemCommandsTest, SelectingRewritesTheRowsFromTheirValues) {
    ASSERT_TRUE(Chain_Append(11));
    Element[1].Item[0].ItemText = "junk";
    Item_Select(1);
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(Element[1].Item[0].ItemText.Str(), "10");
}

}  // namespace
