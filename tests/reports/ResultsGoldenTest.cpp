// Whole results files compared byte for byte with files under tests/data/
// that were checked line by line by hand. TORVANE_UPDATE_GOLDEN=1 rewrites
// them, for a change that is checked again.
#include <gtest/gtest.h>

#include <cstdlib>

#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/HistoryLog.h"
#include "tests/reports/ReportFixture.h"

namespace {

constexpr int16_t kHorizontalBallscrew = 1;
constexpr int16_t kCart = 8;

class ResultsGoldenTest : public ReportTest {
protected:
    void Template(int16_t number) {
        Template_Fill(number, true);
        ElementCount = MecaTemplateCount[number];
    }

    void ExpectGolden(const std::string& name) {
        Culcurate_All();
        const std::string actual = SaveResults();
        const std::string path = std::string(TORVANE_SOURCE_DIR) + "/tests/data/results/" + name;
        if (std::getenv("TORVANE_UPDATE_GOLDEN") != nullptr) WriteFile(path, actual);
        EXPECT_EQ(actual, ReadFile(path)) << name;
    }
};

}  // namespace

TEST_F(ResultsGoldenTest, HorizontalBallscrewWithTrapezoidAndMotor) {
    Template(kHorizontalBallscrew);
    ChooseMotor();
    Rows({{0.1, 3000}, {0.3, 3000}, {0.1, 0}, {0.5, 0}});
    InstallParamIni();
    ExpectGolden("HorizontalBallscrew.TXT");
}

TEST_F(ResultsGoldenTest, Cart) {
    Template(kCart);
    ChooseMotor();
    Rows({{0.2, 1500}, {0.5, 1500}, {0.2, 0}});
    InstallParamIni();
    ExpectGolden("Cart.TXT");
}

TEST_F(ResultsGoldenTest, DirectMassAndInertiaWithSpeedEndingBelowZero) {
    Chain({2, 5});
    Element[1].InputMode = 2;
    Element[1].Item[11].Value = 0.3;
    Element[1].Item[12].Value = 0.7;
    Element[2].InputMode = 1;
    Element[2].DirectValue = 0.05;
    ChooseMotor();
    Rows({{0.1, 1000}, {0.15, -500}, {0.2, -500}, {0.1, 0}, {0.2, 0}});
    InstallParamIni();
    ExpectGolden("DirectInputs.TXT");
}

TEST_F(ResultsGoldenTest, MissingParamIni) {
    Template(kHorizontalBallscrew);
    Rows({{0.1, 3000}, {0.1, 0}});
    ExpectGolden("NoParamIni.TXT");
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>(3, "File(Setting) was not found"));
}

TEST_F(ResultsGoldenTest, ParamIniWithAnEmptyItemAndAnItemWithoutEquals) {
    Template(kHorizontalBallscrew);
    Rows({{0.1, 3000}, {0.1, 0}});
    WriteParamIni("[1]\r\nSet0=3\r\nSet1=ratio=[0]\r\nSet2=\r\nSet3=eff is [1]\r\n"
                  "[11]\r\nSet0=2\r\nSet1=exforce=0\r\nSet2=ratio=[0]/(2*p)\r\n");
    ExpectGolden("BrokenParamIni.TXT");
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>(2, " 5"));
    EXPECT_EQ(LogTexts(History_SiblingPath()), std::vector<std::string>{"An item has not been input(Setting File)"});
}
