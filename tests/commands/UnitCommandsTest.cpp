// Taking unit picks on (commands/UnitCommands): the unit file, the item rows and the sizing values in the new units.
#include <gtest/gtest.h>

#include "calc/mdlCulcurate.h"
#include "commands/UnitCommands.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/UnitFile.h"
#include "tests/support/TestState.h"

namespace {

class UnitCommandsTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = kUnitFreshSel[k];
        Template_Fill(1, true);  // motor, reduction gear, horizontal ballscrew, linear load
        ElementCount = MecaTemplateCount[1];
        Culcurate_All();
    }

    static UnitPicks With(int kind, int16_t index) {
        UnitPicks picks = Unit_Picks();
        picks[kind] = index;
        return picks;
    }
};

TEST_F(UnitCommandsTest, ApplyTakesThePicksOnAndWritesTheUnitFile) {
    Unit_Apply(With(10, 0));  // torque in N.mm
    EXPECT_EQ(UnitTable[10].Sel, 0);
    for (auto& c : UnitTable) c.Sel = 5;
    Unit_Load();
    EXPECT_EQ(UnitTable[10].Sel, 0);
    EXPECT_EQ(UnitTable[0].Sel, 1);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(UnitCommandsTest, ItemRowsShowTheSameValueInTheNewUnit) {
    // Row 0 of the ballscrew is its pitch, 10 mm, a length.
    ASSERT_EQ(Element[2].Item[0].UnitKind, 1);
    const double pitch = Element[2].Item[0].Value;
    Unit_Apply(With(1, 2));  // lengths in m
    EXPECT_EQ(Element[2].Item[0].UnitIndex, 2);
    EXPECT_EQ(Element[2].Item[0].ItemText.Str(), "0.01");
    EXPECT_EQ(Element[2].Item[0].Value, pitch);
}

TEST_F(UnitCommandsTest, KindElevenKeepsItsIndexAndTheFixedKindsGetZero) {
    ElementItem* rows = Element[3].Item.data();
    rows[5].UnitKind = 11, rows[5].UnitIndex = 2;
    rows[6].UnitKind = 12, rows[6].UnitIndex = 3;
    rows[7].UnitKind = 15, rows[7].UnitIndex = 1;
    rows[8].UnitKind = kUnitNotUsed, rows[8].UnitIndex = 4;
    Unit_Apply(Unit_Picks());
    EXPECT_EQ(rows[5].UnitIndex, 2);
    EXPECT_EQ(rows[6].UnitIndex, 0);
    EXPECT_EQ(rows[7].UnitIndex, 0);
    EXPECT_EQ(rows[8].UnitIndex, 0);
}

TEST_F(UnitCommandsTest, TheLoadInertiaOfTheSizingValuesIsRecomputed) {
    ResultValues[Cul][Inertia] = 12345;
    Unit_Apply(Unit_Picks());
    EXPECT_EQ(ResultValues[Cul][Inertia], LoadInertiaTotal);
    EXPECT_NE(ResultValues[Cul][Inertia], 12345);
}

TEST_F(UnitCommandsTest, AUnitFileThatCannotBeWrittenIsToldAndThePicksHold) {
    AppPath = "/nonexistent/folder";
    Unit_Apply(With(7, 0));
    EXPECT_EQ(UnitTable[7].Sel, 0);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].title, "Unit Selections");
    EXPECT_EQ(Element[3].Item[0].UnitIndex, 0);  // workpiece mass now in g
}

}  // namespace
