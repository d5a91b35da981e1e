// The mechanical system question without its window (core/MecaSelect): the arrows, OK, Cancel and the load.
#include <gtest/gtest.h>

#include "core/MecaSelect.h"
#include "core/Tables.h"
#include "tests/support/TestState.h"

class MecaSelectTest : public StateTest {};

TEST_F(MecaSelectTest, UpFromPictureTwoGoesToTenAndDownFromTenToTwo) {
    EXPECT_EQ(Meca_Arrow(2, MecaKey::Up), 10);
    EXPECT_EQ(Meca_Arrow(10, MecaKey::Down), 2);
}

TEST_F(MecaSelectTest, ArrowsWrapInBothDirections) {
    EXPECT_EQ(Meca_Arrow(11, MecaKey::Right), 0);
    EXPECT_EQ(Meca_Arrow(0, MecaKey::Left), 11);
    EXPECT_EQ(Meca_Arrow(5, MecaKey::Down), 9);
    EXPECT_EQ(Meca_Arrow(9, MecaKey::Down), 1);
    EXPECT_EQ(Meca_Arrow(5, MecaKey::Up), 1);
}

TEST_F(MecaSelectTest, EnterOnAnEmptyPictureStillSetsTheResult) {
    Meca_Load();
    MecaTemplateNo = 10;
    EXPECT_FALSE(Meca_OK(false));
    EXPECT_EQ(MecaResult, 1);
}

TEST_F(MecaSelectTest, OkWithoutATemplateStartsWithTheMotorAlone) {
    MecaTemplateNo = 0;
    EXPECT_TRUE(Meca_OK(false));
    EXPECT_EQ(MecaResult, 2);
}

TEST_F(MecaSelectTest, CancelAndLoad) {
    Meca_Cancel();
    EXPECT_EQ(MecaTemplateNo, 0);
    EXPECT_EQ(MecaResult, 3);
    Meca_Load();
    EXPECT_EQ(MecaTemplateNo, 1);
    EXPECT_EQ(MecaResult, 0);
}
