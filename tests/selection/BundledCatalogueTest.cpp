// The catalogue the program carries (Series.db): every query runs and every motor and its drivers are judged.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "core/Tables.h"
#include "selection/DriverJudge.h"
#include "selection/DriverPage.h"
#include "selection/MotorPage.h"
#include "selection/Queries.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"

namespace {

class BundledCatalogueTest : public SeriesDbTest {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        std::filesystem::copy_file(Catalogue_Bundled(), appDir.File("Series.db"));
        Document_Sized();
        MotorPage_Load(page);
    }
    MotorPage page;
};

TEST_F(BundledCatalogueTest, EveryQueryRuns) {
    Recordset rs;
    ASSERT_EQ(Recordset_Open(Query_Series(), rs), 0);
    EXPECT_GE(rs.RecordCount(), 4);
    EXPECT_LE(rs.RecordCount(), 11);
    int motors = 0;
    for (int s = 0; s < static_cast<int>(page.lstS.size()); ++s) {
        ASSERT_EQ(Recordset_Open(Query_Models(SeriesFlgList[s]), rs), 0);
        EXPECT_GE(rs.RecordCount(), 2);
        EXPECT_LE(rs.RecordCount(), 4);
        std::vector<std::string> groups;
        List_Fill(rs, groups, 1);
        for (int g = 0; g < static_cast<int>(groups.size()); ++g) {
            ASSERT_EQ(Recordset_Open(Query_Motors(SeriesIDList[s], ModelFlgList[g]), rs), 0);
            motors += rs.RecordCount();
        }
    }
    EXPECT_GE(motors, 80);
    ASSERT_EQ(Recordset_Open(Query_Drivers("TVM-A040S3"), rs), 0);
    EXPECT_GE(rs.RecordCount(), 1);
    ASSERT_EQ(Recordset_Open(Query_DriverTypes(), rs), 0);
    EXPECT_GE(rs.RecordCount(), 3);
    Comment_Judge_Set();
    EXPECT_TRUE(std::ranges::any_of(DriverTypes, [](const DriverTypeRec& t) { return t.NGJudgeFlg == 1; }));
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(BundledCatalogueTest, EveryMotorAndItsDriversAreJudged) {
    std::set<std::string> verdicts;
    int withoutDrivers = 0;
    for (int s = 0; s < static_cast<int>(page.lstS.size()); ++s) {
        MotorPage_PickSeries(page, s);
        for (int g = 0; g < static_cast<int>(page.lstM.size()); ++g) {
            MotorPage_PickModel(page, g);
            ASSERT_GT(MotorRowCount, 0);
            ASSERT_NO_THROW(MotorPage_Judge(page));
            for (int row = 2; row < MotorRowCount + 2; ++row) {
                verdicts.insert(page.vsfData.Cell(row, 0).text);
                MotorPage_MoveToRow(page, row);
                DriverPage drivers;
                ASSERT_TRUE(MotorPage_TakeMotor(page, drivers));
                ASSERT_NO_THROW(DriverPage_Fill(drivers));
                withoutDrivers += drivers.DriverRowCount == 0;
            }
        }
    }
    EXPECT_EQ(withoutDrivers, 1);
    EXPECT_TRUE(verdicts.contains("OK"));
    EXPECT_TRUE(verdicts.contains("NG"));
    EXPECT_TRUE(verdicts.contains("-"));
    EXPECT_TRUE(msg.Seen().empty());
}

// "Next >" takes a motor's inertia only when Inertia and BrakeInertia are both
// filled; a blank one would leave the sizing after "Finish" without the motor.
TEST_F(BundledCatalogueTest, NoMotorHasABlankInertiaOrBrakeInertia) {
    Recordset rs;
    ASSERT_EQ(Recordset_Open("SELECT * FROM MotorTable;", rs), 0);
    ASSERT_GE(rs.RecordCount(), 80);
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
        const std::string model = rs.Field("MotorModel").Text();
        EXPECT_FALSE(rs.Field("Inertia").Blank()) << model;
        EXPECT_FALSE(rs.Field("BrakeInertia").Blank()) << model;
    }
}

}  // namespace
