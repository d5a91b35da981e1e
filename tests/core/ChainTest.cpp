// The rules of the chain: where a component may go, when the user is asked,
// what may be deleted, and what a placement or deletion does to the table.
#include <gtest/gtest.h>

#include <initializer_list>

#include "core/Catalogue.h"
#include "core/Chain.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {


// The motor followed by a gear (2) in slot 1 and reducers (1) up to `count` elements.
void SetGearChain(int count) {
    Chain_Set({51, 2});
    for (int slot = 2; slot < count; ++slot) Element[slot].ElementType = 1;
    ElementCount = static_cast<int16_t>(count);
}

std::array<int16_t, kElementSlots> Types() {
    std::array<int16_t, kElementSlots> types{};
    for (int slot = 0; slot < kElementSlots; ++slot) types[slot] = Element[slot].ElementType;
    return types;
}

constexpr int16_t kKnownTypes[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,
                                   14, 15, 16, 17, 18, 21, 31, 32, 33, 34, 41, 42};

class ChainTest : public StateTest {};

// --- placing ---------------------------------------------------------------------

TEST_F(ChainTest, PaletteAddIsRefusedWhenTheChainIsFull) {
    SetGearChain(20);
    const auto before = Types();
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(ElementCount), -1);  // slot 20 is never filled
    EXPECT_EQ(ElementCount, 20);
    EXPECT_EQ(Types(), before);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, PaletteAddBehindTheMotorAsksNothingAndCountsTheElement) {
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(ElementCount), 1);  // write into the empty slot 1
    EXPECT_EQ(ElementCount, 2);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, SlotBehindNineteenCountsAsEmpty) {
    // Slot 20 holds type 0, yet behind slot 19 the check sees an empty slot (50):
    // the last free slot is written into, not inserted into.
    SetGearChain(19);
    ASSERT_EQ(Element[20].ElementType, 0);
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(19), 1);
    EXPECT_EQ(ElementCount, 20);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, PaletteAddNeverAsksAQuestion) {
    for (int16_t number = 0; number < kTemplates; ++number) {
        for (const int16_t type : kKnownTypes) {
            Disp_Reset();
            Template_Fill(number, false);
            ElementCount = MecaTemplateCount[number];
            DragType = type;
            const int16_t before = ElementCount;
            const int16_t result = Chain_PlaceCheck(ElementCount);
            EXPECT_TRUE(result == 1 || result == -1) << "template " << number << " type " << type;
            EXPECT_EQ(ElementCount, before + (result == 1 ? 1 : 0));
        }
    }
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, ReducerOnAGearInAChainOfNineteenAsksInsertOrOverwrite) {
    SetGearChain(19);
    DragType = 1;
    msg.Answer(MsgAnswer::Insert);
    EXPECT_EQ(Chain_PlaceCheck(1), 0);
    ASSERT_EQ(msg.Seen().size(), 1u);  // the choice answers the "Insert?" question too
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::InsertOverwriteCancel);
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Question);
    EXPECT_EQ(ElementCount, 20);
    EXPECT_EQ(InsertAnswer, 0);
}

TEST_F(ChainTest, ChoosingOverwriteInTheInsertQuestionWritesIntoTheSlot) {
    SetGearChain(19);
    DragType = 1;
    msg.Answer(MsgAnswer::Overwrite);
    EXPECT_EQ(Chain_PlaceCheck(1), 1);
    EXPECT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(ElementCount, 19);
    EXPECT_EQ(InsertAnswer, 0);
}

TEST_F(ChainTest, CancellingTheInsertQuestionDeclines) {
    SetGearChain(19);
    const auto before = Types();
    DragType = 1;
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_EQ(Chain_PlaceCheck(1), -2);
    EXPECT_EQ(ElementCount, 19);
    EXPECT_EQ(Types(), before);
    EXPECT_EQ(InsertAnswer, 0);
}

TEST_F(ChainTest, ReducerOnAGearInAFullChainAsksOnlyOverwrite) {
    SetGearChain(20);
    DragType = 1;
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_PlaceCheck(1), 1);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Overwrite?");
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Question);
    EXPECT_EQ(ElementCount, 20);
}

TEST_F(ChainTest, CancellingOverwriteInAFullChainDeclines) {
    SetGearChain(20);
    DragType = 1;
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_EQ(Chain_PlaceCheck(1), -2);
    EXPECT_EQ(ElementCount, 20);
}

TEST_F(ChainTest, ReducerBeforeAScrewWithALoadBehindAsksInsert) {
    Chain_Set({51, 1, 11, 31});
    DragType = 1;
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_PlaceCheck(2), 0);  // P 1 rotates, C 11 with N 31 behind: insert only
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Insert?");
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Question);
    EXPECT_EQ(ElementCount, 5);
}

TEST_F(ChainTest, CancellingInsertDeclinesAndKeepsTheCount) {
    Chain_Set({51, 1, 11, 31});
    DragType = 1;
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_EQ(Chain_PlaceCheck(2), -2);
    EXPECT_EQ(ElementCount, 4);
}

TEST_F(ChainTest, InsertIntoAFullChainIsRefused) {
    Chain_Set({51, 11});
    for (int slot = 2; slot <= 19; ++slot) Element[slot].ElementType = 31;
    ElementCount = 20;
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(1), -1);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ElementCount, 20);
}

TEST_F(ChainTest, SlotZeroAndSlotTwentyAreRefused) {
    Chain_Set({51, 1});
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(0), -1);
    EXPECT_EQ(Chain_PlaceCheck(20), -1);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ElementCount, 2);
}

TEST_F(ChainTest, NothingFloatsBehindAnEmptySlot) {
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(2), -1);  // slot 1 is empty
    EXPECT_EQ(ElementCount, 1);
}

TEST_F(ChainTest, SpecialMechanismOnSlotOneWithASecondComponentIsRefused) {
    Chain_Set({51, 1, 11});
    DragType = 41;
    EXPECT_EQ(Chain_PlaceCheck(1), -1);
    DragType = 42;
    EXPECT_EQ(Chain_PlaceCheck(1), -1);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ElementCount, 3);
}

TEST_F(ChainTest, SpecialMechanismGoesBehindTheMotorAlone) {
    DragType = 41;
    EXPECT_EQ(Chain_PlaceCheck(1), 1);
    EXPECT_EQ(ElementCount, 2);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, SpecialMechanismOverwritesTheOnlyComponentAfterAsking) {
    Chain_Set({51, 1});
    DragType = 42;
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_PlaceCheck(1), 1);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Overwrite?");
    EXPECT_EQ(ElementCount, 2);
}

TEST_F(ChainTest, SpecialMechanismIsRefusedAfterTheFirstSlot) {
    Chain_Set({51, 1});
    DragType = 41;
    EXPECT_EQ(Chain_PlaceCheck(2), -1);  // P is 1, not the motor
}

TEST_F(ChainTest, NothingCanBeAddedBehindASpecialMechanism) {
    for (const int16_t special : {int16_t{41}, int16_t{42}}) {
        for (const int16_t type : kKnownTypes) {
            Chain_Set({51, special});
            DragType = type;
            EXPECT_EQ(Chain_PlaceCheck(2), -1) << "type " << type << " behind " << special;
            EXPECT_EQ(ElementCount, 2);
        }
    }
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, SpecialMechanismInSlotOneIsOverwrittenByRotaryInputComponents) {
    for (const int16_t type : kKnownTypes) {
        if (type > 20) continue;
        Chain_Set({51, 41});
        DragType = type;
        msg.Clear();
        msg.Answer(MsgAnswer::OK);
        EXPECT_EQ(Chain_PlaceCheck(1), 1) << "type " << type;
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, "Overwrite?");
    }
}

TEST_F(ChainTest, SpecialMechanismInSlotOneIsNotOverwrittenByLinearInputComponents) {
    for (const int16_t type : {int16_t{21}, int16_t{31}, int16_t{32}, int16_t{33}, int16_t{34}}) {
        Chain_Set({51, 41});
        DragType = type;
        EXPECT_EQ(Chain_PlaceCheck(1), -1) << "type " << type;
    }
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, LinearComponentBetweenRotatingNeighboursIsRefused) {
    Chain_Set({51, 1, 2, 3});
    for (const int16_t type : {int16_t{31}, int16_t{32}, int16_t{33}, int16_t{34}}) {
        DragType = type;
        EXPECT_EQ(Chain_PlaceCheck(2), -1) << "type " << type;  // P 1 rotates, N 3 follows
    }
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ElementCount, 4);
}

TEST_F(ChainTest, LinearComponentOnTheLoadEndAsksInsertOrOverwrite) {
    Chain_Set({51, 1, 11, 31});
    DragType = 33;
    msg.Answer(MsgAnswer::Overwrite);
    EXPECT_EQ(Chain_PlaceCheck(3), 1);  // P 11 is linear, C 31 is linear
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::InsertOverwriteCancel);
    EXPECT_EQ(ElementCount, 4);
}

TEST_F(ChainTest, OnlyItsLikeReplacesAComponentWithNeighboursOnBothSides) {
    Chain_Set({51, 1, 11, 31});
    DragType = 12;  // 11 to 20 replaces 11
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_PlaceCheck(2), 1);
    EXPECT_EQ(msg.Seen().back().text, "Overwrite?");
    DragType = 21;  // 21 to 30 does not
    EXPECT_EQ(Chain_PlaceCheck(2), -1);
}

TEST_F(ChainTest, LoadEndTakesRotaryInputBehindARotatingOutput) {
    Chain_Set({51, 1});
    DragType = 11;
    EXPECT_EQ(Chain_PlaceCheck(2), 1);
    EXPECT_EQ(ElementCount, 3);
    Chain_Set({51, 1});
    DragType = 21;  // linear input behind a rotating output
    EXPECT_EQ(Chain_PlaceCheck(2), -1);
}

TEST_F(ChainTest, LoadEndTakesLinearInputBehindALinearOutput) {
    Chain_Set({51, 11});
    DragType = 21;
    EXPECT_EQ(Chain_PlaceCheck(2), 1);
    Chain_Set({51, 11});
    DragType = 1;
    EXPECT_EQ(Chain_PlaceCheck(2), -1);
}

TEST_F(ChainTest, CheckAlwaysClearsInsertAnswer) {
    Chain_Set({51, 1, 11, 31});
    DragType = 1;
    InsertAnswer = 2;  // a previous answer: no question asked
    EXPECT_EQ(Chain_PlaceCheck(2), 0);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(InsertAnswer, 0);
    InsertAnswer = 1;
    EXPECT_EQ(Chain_PlaceCheck(0), -1);
    EXPECT_EQ(InsertAnswer, 0);
}

// --- the table operations ------------------------------------------------------------

TEST_F(ChainTest, OpenSlotMovesEveryFieldOneSlotTowardTheEnd) {
    Chain_Set({51, 1, 11, 31});
    Element[1].InputMode = 1;
    Element[1].DirectValue = 2.5;
    Element[1].Item[0].Value = 0.01;
    Element[1].Item[0].ItemText = "1/100";
    Element[18].ElementType = 5;
    Element[19].ElementType = 6;
    Chain_OpenSlot(1);
    EXPECT_EQ(Element[2].ElementType, 1);
    EXPECT_EQ(Element[2].InputMode, 1);
    EXPECT_EQ(Element[2].DirectValue, 2.5);
    EXPECT_EQ(Element[2].Item[0].Value, 0.01);
    EXPECT_EQ(Element[2].Item[0].ItemText.Str(), "1/100");
    EXPECT_EQ(Element[2].Item[0].ItemName.Str(), "Reduction ratio");
    EXPECT_EQ(Element[3].ElementType, 11);
    EXPECT_EQ(Element[4].ElementType, 31);
    EXPECT_EQ(Element[1].ElementType, 1);  // the slot keeps its old content until set
    EXPECT_EQ(Element[19].ElementType, 5);  // the old slot 19 is lost
    EXPECT_EQ(Element[0].ElementType, 51);
}

TEST_F(ChainTest, SetSlotFillsTheSlotWithDefaultsAndSelectsIt) {
    Chain_Set({51, 1, 31});
    Element[2].InputMode = 2;
    DragType = 11;
    Chain_SetSlot(2);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[2].InputMode, 0);
    EXPECT_EQ(Element[2].Item[0].ItemName.Str(), "Screw pitch");
    EXPECT_EQ(Element[2].Item[0].Value, 0.01);
    EXPECT_EQ(Element[2].Item[6].UnitKind, 9999);
    EXPECT_EQ(SelectedElement, 2);
}

TEST_F(ChainTest, InsertThenSetPlacesTheComponentBetween) {
    Chain_Set({51, 11, 31});
    DragType = 1;
    msg.Answer(MsgAnswer::OK);
    ASSERT_EQ(Chain_PlaceCheck(1), 0);  // C 11 with N 31: insert after "Insert?"
    Chain_OpenSlot(1);
    Chain_SetSlot(1);
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[0].ElementType, 51);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 11);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_EQ(Element[4].ElementType, 50);
}

// --- deleting -------------------------------------------------------------------------

TEST_F(ChainTest, ReducerBetweenMotorAndBallScrewMayBeDeleted) {
    Chain_Set({51, 1, 11, 31});
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_DeleteCheck(1), 0);  // previous 51, next first digit 1
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "Delete?");
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OKCancel);
}

TEST_F(ChainTest, BallScrewBetweenReducerAndLinearTableMayNotBeDeleted) {
    Chain_Set({51, 1, 11, 31});
    EXPECT_EQ(Chain_DeleteCheck(2), -1);  // previous "01" first digit 0, next "31" first digit 3
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, LinearStageBetweenLinearOutputAndLinearLoadMayBeDeleted) {
    Chain_Set({51, 11, 32, 31});
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_DeleteCheck(2), 0);  // previous 1x, next 3x
}

TEST_F(ChainTest, ExternalForceCountsWithTheOneGroup) {
    // 10 reads "10": first digit 1, so a gear between it and a rack (2x) may go,
    // although a 10 has rotation on both ends.
    Chain_Set({51, 10, 2, 21, 5});
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_DeleteCheck(2), 0);
    // With the reducer (first digit 0) before it, the next must be 0x or 1x: 21 is not.
    Chain_Set({51, 1, 2, 21, 5});
    EXPECT_EQ(Chain_DeleteCheck(2), -1);
}

TEST_F(ChainTest, DeletingTheLastComponentAlwaysAsks) {
    for (const auto& chain : {std::initializer_list<int16_t>{51, 1, 11, 31}, {51, 1, 11}, {51, 41}, {51, 11, 21}}) {
        Chain_Set(chain);
        msg.Clear();
        msg.Answer(MsgAnswer::OK);
        EXPECT_EQ(Chain_DeleteCheck(static_cast<int16_t>(ElementCount - 1)), 0);
        ASSERT_EQ(msg.Seen().size(), 1u);
        EXPECT_EQ(msg.Seen()[0].text, "Delete?");
    }
}

TEST_F(ChainTest, CancellingDeleteDeclines) {
    Chain_Set({51, 1, 11, 31});
    msg.Answer(MsgAnswer::Cancel);
    EXPECT_EQ(Chain_DeleteCheck(3), -2);
    EXPECT_EQ(ElementCount, 4);
}

TEST_F(ChainTest, TheMotorCannotBeDeleted) {
    Chain_Set({51, 1, 11, 31});
    EXPECT_EQ(Chain_DeleteCheck(0), -1);
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(ChainTest, NeighbourInTheFourGroupLetsTheDeleteAsk) {
    Chain_Set({51, 1, 41});  // a chain the rules would not build, but the check allows it
    msg.Answer(MsgAnswer::OK);
    EXPECT_EQ(Chain_DeleteCheck(1), 0);
}

TEST_F(ChainTest, CloseSlotShiftsTheRestAndClearsTheOldLastSlot) {
    Chain_Set({51, 1, 11, 31});
    Element[3].InputMode = 1;
    Element[3].DirectValue = 4;
    SelectedElement = 2;
    Chain_CloseSlot();
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(Element[0].ElementType, 51);
    EXPECT_EQ(Element[1].ElementType, 1);
    EXPECT_EQ(Element[2].ElementType, 31);
    EXPECT_EQ(Element[2].InputMode, 1);
    EXPECT_EQ(Element[2].DirectValue, 4);
    EXPECT_EQ(Element[2].Item[0].ItemName.Str(), "Workpiece mass");
    EXPECT_EQ(Element[3].ElementType, 50);
    EXPECT_EQ(Element[3].InputMode, 0);
    EXPECT_EQ(Element[3].DirectValue, 0);
    EXPECT_EQ(SelectedElement, 2);
}

TEST_F(ChainTest, ClosingTheLastSlotMovesTheSelectionBack) {
    Chain_Set({51, 1, 11, 31});
    SelectedElement = 3;
    Chain_CloseSlot();
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(SelectedElement, 2);
    EXPECT_EQ(Element[3].ElementType, 50);
}

TEST_F(ChainTest, ClosingSlotOneScrollsTheStripBack) {
    Chain_Set({51, 1, 11, 31});
    SelectedElement = 1;
    FirstVisible = 2;
    Chain_CloseSlot();
    EXPECT_EQ(FirstVisible, 0);
    EXPECT_EQ(Element[1].ElementType, 11);
    EXPECT_EQ(Element[2].ElementType, 31);
    EXPECT_EQ(ElementCount, 3);
}

TEST_F(ChainTest, CloseSlotNeverTakesTheCountBelowOne) {
    Chain_Set({51});
    SelectedElement = 1;
    Chain_CloseSlot();
    EXPECT_EQ(ElementCount, 1);
    EXPECT_EQ(Element[0].ElementType, 51);  // the motor stays
}

TEST_F(ChainTest, CloseSlotBeyondTheChainChangesNothing) {
    Chain_Set({51, 1, 31});
    SelectedElement = 5;
    Chain_CloseSlot();
    EXPECT_EQ(ElementCount, 3);
    EXPECT_EQ(Element[2].ElementType, 31);
}

TEST_F(ChainTest, CloseSlotKeepsThePatternRows) {
    Chain_Set({51, 1, 11, 31});
    Patarn[1].Speed = 3000;
    PatternRowCount = 1;
    SelectedElement = 3;
    Chain_CloseSlot();
    EXPECT_EQ(Patarn[1].Speed, 3000);
    EXPECT_EQ(PatternRowCount, 1);
}

// --- the load end -----------------------------------------------------------------------

TEST_F(ChainTest, LoadMotionFollowsTheLastElement) {
    const struct {
        int16_t last;
        int16_t motion;
    } cases[] = {{1, 1}, {10, 1}, {11, 0}, {18, 0}, {21, 1}, {31, 0}, {34, 0}, {41, 0}, {42, 0}};
    for (const auto& c : cases) {
        Chain_Set({51, c.last});
        EXPECT_EQ(Load_Motion(Element), c.motion) << "last type " << c.last;
    }
}

TEST_F(ChainTest, MotorAloneCountsAsLinearLoad) {
    EXPECT_EQ(Load_Motion(Element), 0);  // 51 is above 30
}

TEST_F(ChainTest, LoadMotionLooksOnlyAtTheLastElement) {
    Chain_Set({51, 1, 11, 21});
    EXPECT_EQ(Load_Motion(Element), 1);
    Chain_Set({51, 1, 11, 31});
    EXPECT_EQ(Load_Motion(Element), 0);
}

}  // namespace
