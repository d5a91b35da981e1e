// The recommendation over the catalogue the program carries, for each
// example application and each application file of the tests: the wizard judges the recommended motor and
// driver "OK", and no smaller motor of the catalogue has a driver that passes
// with it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "persist/mdlFile.h"
#include "selection/DriverPage.h"
#include "selection/MotorPage.h"
#include "selection/Recommend.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"

namespace {

// The example applications and those of the tests.
std::vector<std::string> ApplicationFiles() {
    std::vector<std::string> files;
    for (const char* folder : {TORVANE_SOURCE_DIR "/examples", TORVANE_SOURCE_DIR "/tests/data"})
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (entry.path().extension() == ".AP2") files.push_back(entry.path().string());
    std::ranges::sort(files);
    return files;
}

class RecommendBundledTest : public SeriesDbTest, public ::testing::WithParamInterface<std::string> {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        std::filesystem::copy_file(Catalogue_Bundled(), appDir.File("Series.db"));
        ASSERT_TRUE(File_Load(GetParam()));
        MotorPage_Load(page);
    }

    // The driver grid of the motor on the page's current row, as "Next >" shows it.
    Grid Drivers() {
        DriverPage drivers;
        EXPECT_TRUE(MotorPage_TakeMotor(page, drivers));
        DriverPage_Fill(drivers);
        return drivers.vsfDrvList;
    }

    // The verdicts of the drivers of the grid by model number.
    static std::map<std::string, std::string> Verdicts(const Grid& grid) {
        std::map<std::string, std::string> verdicts;
        for (int row = kFixedRows; row < grid.Rows(); ++row) verdicts[grid.Cell(row, 1).text] = grid.Cell(row, 0).text;
        return verdicts;
    }

    MotorPage page;
};

TEST_P(RecommendBundledTest, TheWizardJudgesTheRecommendationOkAndNoSmallerMotorPasses) {
    const RecommendResult result = Recommend({});
    EXPECT_EQ(result.skipped, 0);
    ASSERT_FALSE(result.pairs.empty());
    const Recommendation best = result.pairs.front();
    ASSERT_TRUE(best.capacity.has_value());

    ASSERT_TRUE(MotorPage_Pick(page, best.seriesIndex, best.modelIndex, best.row));
    ASSERT_TRUE(MotorPage_Judge(page));
    EXPECT_EQ(page.vsfData.Cell(best.row, 1).text, best.motor);
    EXPECT_EQ(page.vsfData.Cell(best.row, 0).text, "OK");
    EXPECT_EQ(Verdicts(Drivers())[best.driver], "OK") << best.driver;

    for (int s = 0; s < static_cast<int>(page.lstS.size()); ++s) {
        MotorPage_PickSeries(page, s);
        for (int g = 0; g < static_cast<int>(page.lstM.size()); ++g) {
            MotorPage_PickModel(page, g);
            MotorPage_Judge(page);
            for (int row = kFixedRows; row < page.vsfData.Rows(); ++row) {
                MotorRecordset.MoveFirst();
                MotorRecordset.Move(row - kFixedRows);
                const FieldValue& capacity = MotorRecordset.Field("Capacity");
                if (capacity.Blank() || capacity.Num() >= *best.capacity) continue;
                if (page.vsfData.Cell(row, 0).text != "OK") continue;
                MotorPage_MoveToRow(page, row);
                for (const auto& [driver, verdict] : Verdicts(Drivers()))
                    EXPECT_NE(verdict, "OK") << page.vsfData.Cell(row, 1).text << " with " << driver;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ApplicationFiles, RecommendBundledTest, ::testing::ValuesIn(ApplicationFiles()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             const std::filesystem::path file(info.param);
                             std::string name = file.parent_path().filename().string() + "_" + file.stem().string();
                             std::ranges::replace_if(
                                 name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
                             return name;
                         });

}  // namespace
