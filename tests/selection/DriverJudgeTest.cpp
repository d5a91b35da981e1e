// The judgement of a driver (selection/DriverJudge): regeneration against its limits, flags, colours, driver types.
#include "selection/DriverJudge.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "selection/Grid.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"

namespace {

TEST(RegenerationJudge, BothLimitsBlankPassWhateverTheValues) {
    EXPECT_EQ(Regeneration_Judge(kNoLimit, kNoLimit, 1e9, 1e9), 0);
}

TEST(RegenerationJudge, SingleBlankLimitCountsAs9999) {
    EXPECT_EQ(Regeneration_Judge(kNoLimit, 50, 9998, 10), 0);
    EXPECT_EQ(Regeneration_Judge(kNoLimit, 50, 10000, 10), 2);
}

TEST(RegenerationJudge, Codes) {
    EXPECT_EQ(Regeneration_Judge(10, 20, 11, 10), 2);
    EXPECT_EQ(Regeneration_Judge(10, 20, 5, 21), 1);
    EXPECT_EQ(Regeneration_Judge(10, 20, 11, 21), 3);
}

TEST(RegenerationJudge, ZeroLimitNeverFails) {
    EXPECT_EQ(Regeneration_Judge(10, 0, 5, 1000), 0);
    EXPECT_FALSE(Limit_Exceeded(0, 1000));
}

TEST(RegenerationJudge, LimitEqualToTheValueWithin1e5Passes) {
    EXPECT_EQ(Regeneration_Judge(10, 20, 10 + 5e-6, 20 + 5e-6), 0);
    EXPECT_FALSE(Limit_Exceeded(10, 10 + 5e-6));
    EXPECT_TRUE(Limit_Exceeded(10, 10.001));
}

TEST(RegenerationJudge, OverMarkPassesEveryLimit) {
    EXPECT_EQ(Regeneration_Judge(10, 20, -9999, -9999), 0);
    EXPECT_FALSE(Limit_Exceeded(10, -9999));
}

TEST(JudgeString, Flags) {
    EXPECT_EQ(JudgeString(0), "OK");
    EXPECT_EQ(JudgeString(1), "FAIR");
    EXPECT_EQ(JudgeString(2), "NG");
    EXPECT_EQ(JudgeString(3), "NA");
    EXPECT_EQ(JudgeString(-1), "NA");
}

TEST(JudgeColor, Texts) {
    EXPECT_EQ(JudgeColor("OK"), "-2147483640");
    EXPECT_EQ(JudgeColor("FAIR"), "33023");
    EXPECT_EQ(JudgeColor("NG"), "255");
    EXPECT_EQ(JudgeColor("NA"), "-2147483640");
}

class DriverTypesTest : public SeriesDbTest {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        Build("INSERT INTO DriverTypeMaster VALUES (3, 'ok3', 'ng3', 3, 0), (1, 'ok1', 'ng1', 0, 1),"
              " (2, 'ok2', 'ng2', 2, 2);");
        Series_Connect();
        Comment_Judge_Set();
        PatternRowCount = 2;
    }
};

// What a catalogue holds in a 16-bit field, as the run-time failure it ends with.
std::string FailureOf(void (*command)()) {
    try {
        command();
    } catch (const RuntimeError& e) {
        return e.what();
    }
    return "";
}

TEST_F(SeriesDbTest, ADriverTypeFieldOutsideSixteenBitsIsTheFailureOverflow) {
    for (const char* row : {"(1e11, 'ok', 'ng', 0, 2)", "(1, 'ok', 'ng', 1e11, 2)", "(1, 'ok', 'ng', 0, -1e11)"}) {
        SCOPED_TRACE(row);
        std::filesystem::remove(appDir.File("Series.db"));
        Build(std::string("INSERT INTO DriverTypeMaster VALUES ") + row + ";");
        Series_Connect();
        EXPECT_EQ(FailureOf(Comment_Judge_Set), "Overflow");
        SeriesConnection.Close();
    }
}

TEST_F(DriverTypesTest, ReadInTypeOrder) {
    ASSERT_EQ(DriverTypes.size(), 3u);
    EXPECT_EQ(DriverTypes[0].DriverType, 1);
    EXPECT_EQ(DriverTypes[2].OKComment, "ok3");
    Comment_Judge_Set();
    EXPECT_EQ(DriverTypes.size(), 3u);
}

TEST_F(DriverTypesTest, CatalogueDecidesHowHardABrokenLimitIs) {
    std::string_view color;
    EXPECT_EQ(Driver_Judge(1, 3, color), "FAIR");
    EXPECT_EQ(color, kColorOrange);
    EXPECT_EQ(Driver_Judge(3, 1, color), "OK");
    EXPECT_EQ(Driver_Comment(1, 3), "ng1");
    EXPECT_EQ(Driver_Comment(1, 0), "ok1");
}

TEST_F(DriverTypesTest, OkFlagTwoShowsRedNgAndThreeShowsNa) {
    std::string_view color;
    EXPECT_EQ(Driver_Judge(2, 0, color), "NG");
    EXPECT_EQ(color, kColorRed);
    EXPECT_EQ(Driver_Judge(3, 0, color), "NA");
    EXPECT_EQ(color, kColorWindowText);
}

TEST_F(DriverTypesTest, NoPatternGivesNa) {
    PatternRowCount = 0;
    std::string_view color;
    EXPECT_EQ(Driver_Judge(2, 3, color), "NA");
    EXPECT_EQ(color, kColorWindowText);
    EXPECT_EQ(Driver_Comment(2, 3), "ng2");
}

TEST_F(DriverTypesTest, UnknownTypeIsARunTimeFailure) {
    std::string_view color;
    EXPECT_THROW(Driver_Judge(9, 0, color), RuntimeError);
    EXPECT_THROW(Driver_Comment(9, 0), RuntimeError);
}

}  // namespace
