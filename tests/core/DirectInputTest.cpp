// The boxes of the direct inputs and the rows they make useless.
#include <gtest/gtest.h>

#include "core/Catalogue.h"
#include "core/DirectInput.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

class DirectInputTest : public StateTest {
protected:
    ElementRecord& Place(int16_t type) {
        Element[1].ElementType = type;
        Item_Defaults(type, Element[1].Item);
        Item_Format(Element[1]);
        ElementCount = 2;
        return Element[1];
    }

    static DirectChecks Checks(int16_t type, int16_t mode) {
        DirectChecks c;
        EXPECT_TRUE(Check_Set(type, mode, c));
        return c;
    }
};

void Expect(const DirectChecks& c, bool v1, bool v2, bool e1, bool e2) {
    EXPECT_EQ(c.value1, v1);
    EXPECT_EQ(c.value2, v2);
    EXPECT_EQ(c.enabled1, e1);
    EXPECT_EQ(c.enabled2, e2);
}

TEST_F(DirectInputTest, CylinderLoadOffersBothBoxes) {
    Expect(Checks(5, 0), false, false, true, true);
    Expect(Checks(5, 1), true, false, true, false);
    Expect(Checks(5, 2), false, true, false, true);
}

TEST_F(DirectInputTest, MassTypesOfferTheMassBox) {
    for (int16_t type : {2, 3, 4, 7, 8, 13, 14, 15, 34}) {
        Expect(Checks(type, 0), false, false, false, true);
        Expect(Checks(type, 2), false, true, false, true);
    }
}

TEST_F(DirectInputTest, MassTypeInModeOneLeavesTheBoxesAlone) {
    DirectChecks c{true, true, true, false};
    EXPECT_FALSE(Check_Set(2, 1, c));
    Expect(c, true, true, true, false);
}

TEST_F(DirectInputTest, OtherTypesOfferNoBox) {
    for (int16_t type : {1, 6, 9, 10, 11, 12, 16, 17, 18, 21, 31, 32, 33, 41, 42})
        for (int16_t mode : {0, 1, 2}) Expect(Checks(type, mode), false, false, false, false);
}

TEST_F(DirectInputTest, DirectInertiaOnACylinderLeavesOnlyExternalTorqueOpen) {
    ElementRecord& e = Place(5);
    Direct_Inertia(e, true);
    EXPECT_EQ(e.InputMode, 1);
    for (int row : {0, 1, 2, 3}) EXPECT_EQ(e.Item[row].ItemText.Str(), "--") << row;
    EXPECT_NE(e.Item[4].ItemText.Str(), "--");  // External torque
    EXPECT_EQ(e.Item[12].ItemText.Str(), "--");  // Cylinder mass
    EXPECT_NE(e.Item[13].ItemText.Str(), "--");  // the inertia to type
}

TEST_F(DirectInputTest, DirectInertiaTakesTheCalculatedInertia) {
    ElementRecord& e = Place(5);
    e.Item[13].Value = 0.125;
    Direct_Inertia(e, true);
    EXPECT_DOUBLE_EQ(e.DirectValue, 0.125);
}

TEST_F(DirectInputTest, DirectMassOnACylinderGreysLengthAndDensity) {
    ElementRecord& e = Place(5);
    Direct_Mass(e, true);
    EXPECT_EQ(e.InputMode, 2);
    EXPECT_EQ(e.Item[2].ItemText.Str(), "--");
    EXPECT_EQ(e.Item[3].ItemText.Str(), "--");
    EXPECT_NE(e.Item[0].ItemText.Str(), "--");
    EXPECT_NE(e.Item[12].ItemText.Str(), "--");
}

TEST_F(DirectInputTest, DirectMassOnAGearGreysThicknessAndDensity) {
    ElementRecord& e = Place(2);
    Direct_Mass(e, true);
    for (int row : {1, 2, 4, 5}) EXPECT_EQ(e.Item[row].ItemText.Str(), "--") << row;
    for (int row : {0, 3, 6, 11, 12}) EXPECT_NE(e.Item[row].ItemText.Str(), "--") << row;
}

TEST_F(DirectInputTest, DirectMassOnARotatingBlockGreysWidthBAndDensity) {
    ElementRecord& e = Place(8);
    Direct_Mass(e, true);
    EXPECT_EQ(e.Item[2].ItemText.Str(), "--");
    EXPECT_EQ(e.Item[3].ItemText.Str(), "--");
    EXPECT_NE(e.Item[1].ItemText.Str(), "--");
}

TEST_F(DirectInputTest, OtherTypesHaveNoRowsToGrey) {
    ElementRecord& e = Place(11);
    e.InputMode = 2;
    Rows_Grey(e);
    for (int row = 0; row < kItemRows; ++row) EXPECT_NE(e.Item[row].ItemText.Str(), "--") << row;
}

TEST_F(DirectInputTest, TurningOffShowsTheValuesAgain) {
    ElementRecord& e = Place(5);
    Direct_Inertia(e, true);
    Direct_Inertia(e, false);
    EXPECT_EQ(e.InputMode, 0);
    EXPECT_EQ(e.Item[0].ItemText.Str(), "200");
    EXPECT_EQ(e.Item[3].ItemText.Str(), "7.8");
}

TEST_F(DirectInputTest, TurningOffTheOtherModeChangesNothing) {
    ElementRecord& e = Place(5);
    Direct_Mass(e, true);
    Direct_Inertia(e, false);
    EXPECT_EQ(e.InputMode, 2);
    EXPECT_EQ(e.Item[2].ItemText.Str(), "--");
}

TEST_F(DirectInputTest, NeitherBoxMarksTheDocumentChanged) {
    ElementRecord& e = Place(5);
    DirtyFlag = 0;
    Direct_Inertia(e, true);
    Direct_Inertia(e, false);
    Direct_Mass(e, true);
    Direct_Mass(e, false);
    EXPECT_EQ(DirtyFlag, 0);
}

}  // namespace
