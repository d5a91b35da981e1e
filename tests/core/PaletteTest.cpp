// The palette without its window: tabs, cells and keys.
#include <gtest/gtest.h>

#include "core/Catalogue.h"
#include "core/Palette.h"

namespace {

TEST(PaletteTest, TabsCarryTheirCaptions) {
    EXPECT_EQ(Palette_TabCaption(1), "Rotation -> Rotation");
    EXPECT_EQ(Palette_TabCaption(2), "Rotation -> Linear");
    EXPECT_EQ(Palette_TabCaption(3), "Linear -> Rotation");
    EXPECT_EQ(Palette_TabCaption(4), "Linear -> Linear");
    EXPECT_EQ(Palette_TabCaption(5), "Special Mechanism");
}

TEST(PaletteTest, CellsCountTheCodesOfTheirTab) {
    EXPECT_EQ(Palette_Type(1, 0), 1);
    EXPECT_EQ(Palette_Type(1, 9), 10);
    EXPECT_EQ(Palette_Type(2, 8), 19);
    EXPECT_EQ(Palette_Type(5, 9), 50);
}

TEST(PaletteTest, TabFiveShowsOnlyCartAndPinionCart) {
    int filled = 0;
    for (int c = 0; c < kPaletteCells; ++c)
        if (!Type_Label(Palette_Type(5, c)).empty()) ++filled;
    EXPECT_EQ(filled, 2);
    EXPECT_EQ(Type_Label(Palette_Type(5, 0)), "Cart");
    EXPECT_EQ(Type_Label(Palette_Type(5, 1)), "Pinion cart");
}

TEST(PaletteTest, ArrowsWrapOverTheTwoRows) {
    EXPECT_EQ(Palette_NextCell(3, 39), 4);
    EXPECT_EQ(Palette_NextCell(9, 39), 0);
    EXPECT_EQ(Palette_NextCell(0, 37), 9);
    EXPECT_EQ(Palette_NextCell(6, 37), 5);
    EXPECT_EQ(Palette_NextCell(7, 38), 2);
    EXPECT_EQ(Palette_NextCell(2, 38), 7);
    EXPECT_EQ(Palette_NextCell(2, 40), 7);
    EXPECT_EQ(Palette_NextCell(7, 40), 2);
}

TEST(PaletteTest, EnterStaysAndOtherKeysGoToTheFirstCell) {
    EXPECT_EQ(Palette_NextCell(6, 13), 6);
    EXPECT_EQ(Palette_NextCell(6, 46), 0);
    EXPECT_EQ(Palette_NextCell(6, 65), 0);
}

}  // namespace
