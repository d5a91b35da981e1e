// Dropping a component on the chain strip and deleting the selected one: the
// messages, the dirty mark and the recalculation that follow the chain rules.
#include <gtest/gtest.h>

#include <array>
#include <initializer_list>

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "commands/ChainCommands.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

constexpr double kScrewRatio = 0.01 / 6.28;  // default lead of a ballscrew per radian

class ChainCommandsTest : public StateTest {
protected:
    // The motor and then the types from slot 1 on, each with its defaults.
    static void SetChain(std::initializer_list<int16_t> types) { Chain_Set(types, 1); }


    static std::array<int16_t, kElementSlots> Types() {
        std::array<int16_t, kElementSlots> types{};
        for (int slot = 0; slot < kElementSlots; ++slot) types[slot] = Element[slot].ElementType;
        return types;
    }

    void ExpectOnlyMessage(const char* text, const char* title) const {
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, text);
        EXPECT_EQ(msg.Seen()[0].title, title);
        EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
        EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OK);
    }
};

// --- drop ---------------------------------------------------------------------------

TEST_F(ChainCommandsTest, RefusedDropShowsCannotInsertOverwriteAndLeavesTheChain) {
    SetChain({1, 11, 31});  // reducer, ballscrew, linear table
    SelectedElement = 2;
    const auto before = Types();
    // A reducer behind the linear table: the table's output is linear.
    EXPECT_FALSE(Chain_Drop(4, 1));
    ExpectOnlyMessage("Cannot insert/overwrite.", "Add Component");
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(InsertAnswer, 0);
}

TEST_F(ChainCommandsTest, DropBehindAnEmptySlotIsRefused) {
    SetChain({1});
    const auto before = Types();
    EXPECT_FALSE(Chain_Drop(3, 1));
    ExpectOnlyMessage("Cannot insert/overwrite.", "Add Component");
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(ElementCount, 2);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(ChainCommandsTest, DropOnTheMotorIsRefused) {
    SetChain({1});
    const auto before = Types();
    EXPECT_FALSE(Chain_Drop(0, 1));
    ExpectOnlyMessage("Cannot insert/overwrite.", "Add Component");
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(ChainCommandsTest, SpecialMechanismOnSlotOneOfALongerChainIsRefused) {
    SetChain({1, 11});
    const auto before = Types();
    EXPECT_FALSE(Chain_Drop(1, 41));
    ExpectOnlyMessage("Cannot insert/overwrite.", "Add Component");
    EXPECT_EQ(Types(), before);
}

TEST_F(ChainCommandsTest, DeclinedQuestionLeavesTheChainWithoutAMessage) {
    SetChain({1, 11});
    const auto before = Types();
    msg.Answer(MsgAnswer::Cancel);  // "Insert?  Overwrite?"
    EXPECT_FALSE(Chain_Drop(1, 1));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Insert?  Overwrite?");
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_EQ(InsertAnswer, 0);
}

TEST_F(ChainCommandsTest, AcceptedDropIntoTheFreeSlotSetsDirtyFlagAndRecalculates) {
    ASSERT_EQ(ElementCount, 1);
    ASSERT_EQ(TotalRatio, 0);
    EXPECT_TRUE(Chain_Drop(1, 11));
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ElementCount, 2);
    EXPECT_EQ(Element[1].ElementType, 11);
    EXPECT_EQ(Element[1].InputMode, 0);
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(DirtyFlag, 1);
    // The calculation ran: the load end is linear and the screw's ratio is in place.
    EXPECT_EQ(LoadMotion, 0);
    EXPECT_DOUBLE_EQ(TotalRatio, kScrewRatio);
    EXPECT_GT(LoadInertiaTotal, 0);
}

TEST_F(ChainCommandsTest, AcceptedInsertOpensTheSlotAndRecalculates) {
    SetChain({11, 31});
    Culcurate_All();
    ASSERT_DOUBLE_EQ(TotalRatio, kScrewRatio);
    msg.Answer(MsgAnswer::OK);  // "Insert?"
    EXPECT_TRUE(Chain_Drop(1, 1));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Insert?");
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(Element[4].ElementType, kTypeEmpty);
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(DirtyFlag, 1);
    // The reducer now stands in front of the screw.
    EXPECT_DOUBLE_EQ(TotalRatio, Element[1].Item[0].Value * kScrewRatio);
}

TEST_F(ChainCommandsTest, OverwriteAnswerReplacesTheComponent) {
    SetChain({2, 11});
    msg.Answer(MsgAnswer::Overwrite);  // "Insert?  Overwrite?"
    EXPECT_TRUE(Chain_Drop(1, 1));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_EQ(InsertAnswer, 0);
}

TEST_F(ChainCommandsTest, DropKeepsThePatternRows) {
    Patarn[1] = {0.1, 0.1, 3000, 0, 0, 0, 0, 3};
    PatternRowCount = 1;
    EXPECT_TRUE(Chain_Drop(1, 11));
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(PatternRowCount, 1);
    // Recalculated: 3000 r/min over 10 mm per turn is 0.5 m/s at the load.
    EXPECT_NEAR(Patarn[1].LoadSpeed, 0.5, 1e-12);
}

// --- delete -------------------------------------------------------------------------

TEST_F(ChainCommandsTest, TheMotorCannotBeDeleted) {
    SetChain({1, 11});
    SelectedElement = 0;
    const auto before = Types();
    EXPECT_FALSE(Chain_Delete());
    ExpectOnlyMessage("Cannot delete.", "Delete Component");  // no "Delete?" first
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(ChainCommandsTest, RefusedDeleteShowsCannotDeleteAndLeavesTheChain) {
    // The ballscrew between a reducer and a linear table: first digits 0 and 3.
    SetChain({1, 11, 31});
    SelectedElement = 2;
    const auto before = Types();
    EXPECT_FALSE(Chain_Delete());
    ExpectOnlyMessage("Cannot delete.", "Delete Component");
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(DirtyFlag, 0);
}

TEST_F(ChainCommandsTest, DeleteAnsweredCancelLeavesEverything) {
    SetChain({1, 11});
    Culcurate_All();
    SelectedElement = 1;
    FirstVisible = 1;
    const auto before = Types();
    const double ratio = TotalRatio;
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_FALSE(Chain_Delete());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Delete?");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Question);
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(SelectedElement, 1);
    EXPECT_EQ(FirstVisible, 1);
    EXPECT_EQ(DirtyFlag, 0);
    EXPECT_DOUBLE_EQ(TotalRatio, ratio);
}

TEST_F(ChainCommandsTest, AcceptedDeleteClosesTheGapSetsDirtyFlagAndRecalculates) {
    // A reducer between the motor and a ballscrew: both ends rotate.
    SetChain({1, 11, 31});
    Element[1].Item[0].Value = 0.5;
    Culcurate_All();
    ASSERT_DOUBLE_EQ(TotalRatio, 0.5 * kScrewRatio);
    SelectedElement = 1;
    msg.Answer(MsgAnswer::OK);
    EXPECT_TRUE(Chain_Delete());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Delete?");
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(Element[1].ElementType, 11);
    EXPECT_EQ(Element[2].ElementType, 31);
    EXPECT_EQ(Element[3].ElementType, kTypeEmpty);
    EXPECT_EQ(DirtyFlag, 1);
    EXPECT_DOUBLE_EQ(TotalRatio, kScrewRatio);
}

TEST_F(ChainCommandsTest, DeletingTheLastComponentAlwaysAsks) {
    SetChain({1, 11, 31});
    SelectedElement = 3;
    msg.Answer(MsgAnswer::OK);
    EXPECT_TRUE(Chain_Delete());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Delete?");
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(SelectedElement, 2);  // the selection moves one slot back
    EXPECT_EQ(Element[3].ElementType, kTypeEmpty);
}

TEST_F(ChainCommandsTest, DeletingTheOnlyComponentLeavesTheMotorAlone) {
    SetChain({11});
    SelectedElement = 1;
    FirstVisible = 1;
    msg.Answer(MsgAnswer::OK);
    EXPECT_TRUE(Chain_Delete());
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(SelectedElement, 0);
    EXPECT_EQ(FirstVisible, 0);
    EXPECT_EQ(Element[0].ElementType, kTypeMotor);
    EXPECT_EQ(Element[1].ElementType, kTypeEmpty);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(ChainCommandsTest, DeleteKeepsThePatternRows) {
    SetChain({1, 11});
    Patarn[1] = {0.1, 0.1, 3000, 0, 0, 0, 0, 3};
    PatternRowCount = 1;
    SelectedElement = 1;
    msg.Answer(MsgAnswer::OK);
    EXPECT_TRUE(Chain_Delete());
    EXPECT_EQ(Patarn[1].RowState, 3);
    EXPECT_DOUBLE_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(PatternRowCount, 1);
}

}  // namespace
