// The checks of an edit in the settings grid, in their order, and the store
// of an accepted text.
#include <gtest/gtest.h>

#include <string>

#include "core/Catalogue.h"
#include "core/ItemEdit.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

namespace {

class ItemEditTest : public StateTest {
protected:
    // The motor and one component of the type in slot 1, rows as shown.
    void Place(int16_t type) {
        Element[1].ElementType = type;
        Item_Defaults(type, Element[1].Item);
        Item_Format(Element[1]);
        ElementCount = 2;
        SelectedElement = 1;
    }

    // The text the cell keeps, or "refused" with the message counted.
    std::string Edit(int gridRow, std::string text) {
        const size_t before = msg.Seen().size();
        if (ValidateEdit(1, gridRow, text)) {
            EXPECT_EQ(msg.Seen().size(), before);
            return text;
        }
        EXPECT_EQ(msg.Seen().size(), before + 1);
        EXPECT_EQ(msg.Seen().back().text, "Illegal input value.");
        EXPECT_EQ(msg.Seen().back().title, "Input Component Settings");
        EXPECT_EQ(msg.Seen().back().icon, MsgIcon::Exclamation);
        return "refused";
    }
};

TEST_F(ItemEditTest, MaterialTableGivesTheDensities) {
    EXPECT_DOUBLE_EQ(Material_Density("Iron"), 7.8);
    EXPECT_DOUBLE_EQ(Material_Density("Aluminium"), 2.7);
    EXPECT_DOUBLE_EQ(Material_Density("Cooper"), 8.9);
    EXPECT_DOUBLE_EQ(Material_Density("Brass"), 8.4);
    EXPECT_DOUBLE_EQ(Material_Density("Bronze"), 8.8);
    EXPECT_DOUBLE_EQ(Material_Density("Gold"), -1);
    EXPECT_DOUBLE_EQ(Material_Density(""), -1);
}

TEST_F(ItemEditTest, BrassInADensityRowGivesItsDensity) {
    Place(5);  // row 4 is the density
    EXPECT_EQ(Edit(4, "Brass"), "8.4");
}

TEST_F(ItemEditTest, ANumberInADensityRowIsTakenAsItIs) {
    Place(5);
    EXPECT_EQ(Edit(4, "7.25"), "7.25");
}

TEST_F(ItemEditTest, AMaterialNotInTheTableFails) {
    Place(5);
    EXPECT_EQ(Edit(4, "Gold"), "refused");
}

TEST_F(ItemEditTest, ARatioStaysAsTypedWithItsQuotientAsValue) {
    Place(1);
    std::string t = "3/1";
    ASSERT_TRUE(ValidateEdit(1, 1, t));
    EXPECT_EQ(t, "3/1");
    ItemEdit_Store(1, 1, t, false);
    EXPECT_EQ(Element[1].Item[0].ItemText.Str(), "3/1");
    EXPECT_DOUBLE_EQ(Element[1].Item[0].Value, 3);
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(ItemEditTest, RatiosWithoutOneSideFail) {
    Place(1);
    EXPECT_EQ(Edit(1, "3/"), "refused");
    EXPECT_EQ(Edit(1, "/1"), "refused");
    EXPECT_EQ(Edit(1, "a/1"), "refused");
    EXPECT_EQ(Edit(1, "1/2/3"), "refused");
}

TEST_F(ItemEditTest, AnEmptyOrNegativeRatioFails) {
    Place(1);
    EXPECT_EQ(Edit(1, ""), "refused");
    EXPECT_EQ(Edit(1, "-3"), "refused");
    EXPECT_EQ(Edit(1, "1/-3"), "refused");
}

TEST_F(ItemEditTest, ATotalReductionRatioOfACartTakesAFraction) {
    Place(41);
    EXPECT_EQ(Edit(3, "1/50"), "1/50");
    EXPECT_EQ(Edit(3, "0.02"), "0.02");
}

TEST_F(ItemEditTest, TheFifthDigitIsDroppedNotRounded) {
    Place(11);
    EXPECT_EQ(Edit(1, "12.345"), "12.34");
    EXPECT_EQ(Edit(1, "12.349"), "12.34");
    EXPECT_EQ(Edit(1, "0.00012345"), "0.0001234");
    EXPECT_EQ(Edit(1, "123456"), "123400");
    EXPECT_EQ(Edit(1, "10"), "10");
}

TEST_F(ItemEditTest, NegativeAnglePasses) {
    Place(33);  // row 2 "Angle of incline"
    EXPECT_EQ(Edit(2, "-5"), "-5");
}

TEST_F(ItemEditTest, NegativeForceAndTorquePass) {
    Place(10);  // row 1 "External force", kind 9
    EXPECT_EQ(Edit(1, "-5"), "-5");
    Place(5);  // row 5 "External torque", kind 10
    EXPECT_EQ(Edit(5, "-5"), "-5");
}

TEST_F(ItemEditTest, NegativeFailsElsewhere) {
    Place(11);
    EXPECT_EQ(Edit(2, "-5"), "refused");
    Place(31);
    EXPECT_EQ(Edit(1, "-5"), "refused");
}

TEST_F(ItemEditTest, ZeroPercentFails) {
    Place(11);  // row 4 "Trans. efficiency" in %
    EXPECT_EQ(Edit(4, "0"), "refused");
}

TEST_F(ItemEditTest, AbovehundredPercentFailsAndHundredPasses) {
    Place(11);
    EXPECT_EQ(Edit(4, "100.5"), "refused");
    EXPECT_EQ(Edit(4, "100"), "100");
}

TEST_F(ItemEditTest, ZeroFailsWhereItWouldDivide) {
    Place(1);
    EXPECT_EQ(Edit(1, "0"), "refused");
    Place(2);
    EXPECT_EQ(Edit(1, "0"), "refused");
    EXPECT_EQ(Edit(4, "0"), "refused");
    EXPECT_EQ(Edit(2, "0"), "0");
    Place(42);
    EXPECT_EQ(Edit(3, "0"), "refused");
    EXPECT_EQ(Edit(5, "0"), "refused");
    EXPECT_EQ(Edit(8, "0"), "refused");
    Place(31);
    EXPECT_EQ(Edit(1, "0"), "0");
}

TEST_F(ItemEditTest, InnerDiameterEqualToOuterFails) {
    Place(5);  // outer 200 mm, inner 0 mm
    EXPECT_DOUBLE_EQ(Diameter_Outer(1), 200);
    EXPECT_DOUBLE_EQ(Diameter_Inner(1), 0);
    EXPECT_EQ(Edit(2, "200"), "refused");
    EXPECT_EQ(Edit(2, "199"), "199");
}

TEST_F(ItemEditTest, OuterDiameterEqualToInnerFails) {
    Place(5);
    Element[1].Item[1].ItemText = "50";
    EXPECT_DOUBLE_EQ(Diameter_Inner(1), 50);
    EXPECT_EQ(Edit(1, "50"), "refused");
    EXPECT_EQ(Edit(1, "51"), "51");
}

TEST_F(ItemEditTest, NutDiametersAreCheckedToo) {
    Place(17);  // rows 4 and 5: nut outer 40 mm, nut inner 20 mm
    EXPECT_EQ(Edit(5, "40"), "refused");
    EXPECT_EQ(Edit(4, "20"), "refused");
}

TEST_F(ItemEditTest, TextThatIsNoNumberFails) {
    Place(11);
    EXPECT_EQ(Edit(1, ""), "refused");
    EXPECT_EQ(Edit(1, "1,5"), "refused");
    EXPECT_EQ(Edit(1, "e"), "refused");
    EXPECT_EQ(Edit(1, "1/2"), "refused");
}

TEST_F(ItemEditTest, OnlyTheFilteredKeysPass) {
    for (char32_t c : U"0123456789,./eE+-") EXPECT_TRUE(c == 0 || ItemEdit_KeyAllowed(c)) << static_cast<int>(c);
    EXPECT_TRUE(ItemEdit_KeyAllowed(8));
    for (char32_t c : U"aBz *x") EXPECT_FALSE(c != 0 && ItemEdit_KeyAllowed(c)) << static_cast<int>(c);
}

TEST_F(ItemEditTest, DashedAndNamelessRowsCannotBeOpened) {
    Place(5);
    EXPECT_FALSE(ItemEdit_MayOpen(Element[1], 3, "--"));
    EXPECT_FALSE(ItemEdit_MayOpen(Element[1], 3, " -- "));
    EXPECT_TRUE(ItemEdit_MayOpen(Element[1], 3, "50"));
    EXPECT_FALSE(ItemEdit_MayOpen(Element[1], 7, ""));  // no item in row 6
    EXPECT_TRUE(ItemEdit_MayOpen(Element[1], 14, "0"));
}

TEST_F(ItemEditTest, DensityRowsAreKnownByTheirUnit) {
    Place(2);
    EXPECT_TRUE(Item_IsDensityRow(Element[1].Item[2]));
    EXPECT_FALSE(Item_IsDensityRow(Element[1].Item[0]));
    EXPECT_FALSE(Item_IsDensityRow(Element[1].Item[10]));
}

TEST_F(ItemEditTest, StoreKeepsTheTextAndTheValueInTheBaseUnit) {
    Place(11);
    ItemEdit_Store(1, 1, "12.34", false);  // pitch in mm
    EXPECT_EQ(Element[1].Item[0].ItemText.Str(), "12.34");
    EXPECT_NEAR(Element[1].Item[0].Value, 0.01234, 1e-15);
}

TEST_F(ItemEditTest, DirectInertiaStoresOnlyTheDirectValue) {
    Place(5);
    Element[1].InputMode = 1;
    const ElementItem before = Element[1].Item[13];
    ItemEdit_Store(1, 14, "2", true);
    EXPECT_GT(Element[1].DirectValue, 0);
    EXPECT_EQ(Element[1].Item[13].ItemText, before.ItemText);
    EXPECT_EQ(Element[1].Item[13].Value, before.Value);
}

}  // namespace
