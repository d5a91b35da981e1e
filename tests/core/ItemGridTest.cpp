// The texts of the settings grid of one element.
#include <gtest/gtest.h>

#include "core/Catalogue.h"
#include "core/ItemGrid.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

class ItemGridTest : public StateTest {
protected:
    ElementRecord& Place(int16_t type) {
        Element[1].ElementType = type;
        Item_Defaults(type, Element[1].Item);
        Item_Format(Element[1]);
        return Element[1];
    }
};

TEST_F(ItemGridTest, RowsShowNameUnitAndSetting) {
    ElementRecord& e = Place(5);
    const ItemGridRow r = Item_GridRow(e, 1);
    EXPECT_EQ(r.name, "Outer diameter");
    EXPECT_EQ(r.unit, "mm");
    EXPECT_EQ(r.setting, "200");
    EXPECT_FALSE(r.grey);
    EXPECT_EQ(Item_GridRow(e, 4).unit, "g/cm\xB3");
}

TEST_F(ItemGridTest, RowsWithoutANameStayBlank) {
    ElementRecord& e = Place(5);
    const ItemGridRow r = Item_GridRow(e, 7);
    EXPECT_EQ(r.name, "");
    EXPECT_EQ(r.unit, "");
    EXPECT_EQ(r.setting, "");
}

TEST_F(ItemGridTest, ARatioStandsAsTyped) {
    ElementRecord& e = Place(41);
    EXPECT_EQ(Item_GridRow(e, 3).setting, "1/100");
}

TEST_F(ItemGridTest, ADashRowIsGrey) {
    ElementRecord& e = Place(5);
    e.Item[2].ItemText = "--";
    EXPECT_EQ(Item_GridRow(e, 3).setting, "--");
    EXPECT_TRUE(Item_GridRow(e, 3).grey);
}

TEST_F(ItemGridTest, TheLastRowIsTheInertiaInThePickedUnit) {
    ElementRecord& e = Place(5);
    e.Item[13].ItemText = "12.5";
    const ItemGridRow r = Item_GridRow(e, 14);
    EXPECT_EQ(r.name, "Culculated inertia");
    EXPECT_EQ(r.unit, UnitTable[8].Names[UnitTable[8].Sel]);
    EXPECT_EQ(r.setting, "1.25E+1");
}

TEST_F(ItemGridTest, AZeroInertiaKeepsItsScientificForm) {
    ElementRecord& e = Place(1);  // row 3 "Input axis inertia"
    e.Item[2].ItemText = "0";
    EXPECT_EQ(Item_GridRow(e, 3).setting, Num_Format(0, 1, 1));
}

}  // namespace
