// The general parameters of the results file (reports/GeneralParam): the formulas of Param.ini and their values.
#include <gtest/gtest.h>

#include "base/NumberFormat.h"
#include "calc/mdlCulcurate.h"
#include "core/Tables.h"
#include "reports/GeneralParam.h"
#include "core/HistoryLog.h"
#include "reports/ResultsLine.h"
#include "tests/reports/ReportFixture.h"

namespace {

const std::string kHead = "        \r\n        <Calculation Values for General Parameters>\r\n";

class GeneralParamTest : public ReportTest {
protected:
    // The block of element index alone, as it lands in the file.
    std::string Block(int16_t index) {
        Results_Open(ResultsPath());
        Results_GeneralParam(Element[index].ElementType, index);
        Results_Close();
        return ReadFile(ResultsPath());
    }
};

std::string Line(int blanks, const std::string& text) { return std::string(blanks, ' ') + text + "\r\n"; }

}  // namespace

TEST(ResultsValueColumn, PositionOfTheFirstEqualsPlusEleven) {
    EXPECT_EQ(Results_ValueColumn("inert0=[2]"), 18);
    EXPECT_EQ(Results_ValueColumn("m1=a=b"), 14);
    EXPECT_EQ(Results_ValueColumn("no equals"), 11);
    EXPECT_EQ(Results_ValueColumn(""), 11);
}

TEST_F(GeneralParamTest, WithoutParamIniOnlyTheHeadAndOneLogLine) {
    Chain({1});
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead);
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>{"File(Setting) was not found"});
}

TEST_F(GeneralParamTest, MissingSectionOrZeroCountGivesTheHeadAlone) {
    WriteParamIni("[1]\nSet0=0\nSet1=ratio=[0]\n");
    Chain({1, 11});
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead);
    EXPECT_EQ(Block(2), kHead);
    EXPECT_EQ(ReadFile(History_Path()), "");
}

TEST_F(GeneralParamTest, FormulaNumbersAndTheStoredValue) {
    WriteParamIni("[11]\nSet0=1\nSet1=ratio=[0]/(2*p)\n");
    Chain({11});
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "ratio=[0]/(2*p)") + Line(12, "ratio=0.01/(2*3.14)") +
                            Line(17, "=" + NumberText(0.01 / 6.28)));
}

TEST_F(GeneralParamTest, TheValueLineShowsTheStoredValueWhateverTheFormulaSays) {
    WriteParamIni("[1]\nSet0=1\nSet1=ratio=42\n");
    Chain({1});
    Element[1].Item[0].Value = 0.01;
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "ratio=42") + Line(12, "ratio=42") + Line(17, "=0.01"));
}

TEST_F(GeneralParamTest, AnUnknownNameHasNoValueLine) {
    WriteParamIni("[1]\nSet0=1\nSet1=speed=[0]\n");
    Chain({1});
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "speed=[0]") + Line(12, "speed=1"));
}

TEST_F(GeneralParamTest, AMissingSecondItemRepeatsTheValueLineOfTheFirst) {
    WriteParamIni("[1]\nSet0=2\nSet1=eff=[1]\n");
    Chain({1});
    Element[1].Item[1].Value = 0.9;
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "eff=[1]") + Line(12, "eff=0.9") + Line(15, "=0.9") + Line(12, "") +
                            Line(12, "") + Line(11, "=0.9"));
    EXPECT_EQ(LogTexts(History_SiblingPath()), std::vector<std::string>{"An item has not been input(Setting File)"});
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>{" 5"});
}

TEST_F(GeneralParamTest, AnEmptyFirstItemHasNoValueLine) {
    WriteParamIni("[1]\nSet0=1\nSet1=\n");
    Chain({1});
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "") + Line(12, ""));
    EXPECT_EQ(LogTexts(History_SiblingPath()).size(), 1u);
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>{" 5"});
}

TEST_F(GeneralParamTest, AnItemWithoutEqualsKeepsThePreviousName) {
    WriteParamIni("[1]\nSet0=2\nSet1=ratio=[0]\nSet2=just p and [1]\n");
    Chain({1});
    Element[1].Item[0].Value = 0.5;
    Element[1].Item[1].Value = 0.9;
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "ratio=[0]") + Line(12, "ratio=0.5") + Line(17, "=0.5") +
                            Line(12, "just p and [1]") + Line(12, "just 3.14 and 0.9") + Line(11, "=0.5"));
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>{" 5"});
}

TEST_F(GeneralParamTest, DirectMassInputShowsTheMassAndNoFormula) {
    WriteParamIni("[2]\nSet0=4\nSet1=m1=[2]*p\nSet2=m2=[5]*p\nSet3=m_all=m1+m2\nSet4=ratio=[0]/[3]\n");
    Chain({2});
    Element[1].InputMode = 2;
    Element[1].Item[11].Value = 0.3;
    Element[1].Item[12].Value = 0.7;
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "Direct mass input") + Line(12, "m1=") + Line(14, "=0.3") +
                            Line(12, "Direct mass input") + Line(12, "m2=") + Line(14, "=0.7") +
                            Line(12, "Direct mass input") + Line(12, "m_a") + Line(14, "=0.7") +
                            Line(12, "ratio=[0]/[3]") + Line(12, "ratio=0.02/0.06") +
                            Line(17, "=" + NumberText(0.02 / 0.06)));
}

TEST_F(GeneralParamTest, OnlyALowerCaseMStartsADirectMass) {
    WriteParamIni("[2]\nSet0=1\nSet1=M1=[2]\n");
    Chain({2});
    Element[1].InputMode = 2;
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "M1=[2]") + Line(12, "M1=7.8"));
}

TEST_F(GeneralParamTest, DirectInertiaInputShowsTheInertiaAndNoFormula) {
    WriteParamIni("[5]\nSet0=2\nSet1=inert0=([1]^2+[0]^2)*m1/8\nSet2=exforce=[4]\n");
    Chain({5});
    Element[1].InputMode = 1;
    Element[1].DirectValue = 0.05;
    Culcurate_All();
    EXPECT_EQ(Block(1), kHead + Line(12, "Direct inertia input") + Line(12, "inert0=") + Line(18, "=0.05") +
                            Line(12, "exforce=[4]") + Line(12, "exforce=0") + Line(19, "=0"));
}

TEST_F(GeneralParamTest, CartLoadInertiaLineIsWrittenFromTheValues) {
    InstallParamIni();
    Chain({41});
    ChooseMotor();
    Culcurate_All();
    const ParamRecord& p = Param[1];
    const std::string lines = Block(1);
    EXPECT_NE(lines.find(Line(12, "JL=ratio^2*m_all+[2]^2*m2*[4]^2/8") + Line(12, "JL=" + NumberText(p.ratio) +
                         "^2*" + NumberText(p.m1 + 1.5 + p.m2) + "+0.01^2*" + NumberText(p.m2) + "*0.1^2/8")),
              std::string::npos)
        << lines;
    double mass = 0;
    EXPECT_NE(lines.find(Line(14, "=" + NumberText(Load_Inertia(Element, 1, mass)))), std::string::npos);
}

TEST_F(GeneralParamTest, PinionCartLoadInertiaLineIsTheSeventhItem) {
    InstallParamIni();
    Chain({42});
    ChooseMotor();
    Culcurate_All();
    const ParamRecord& p = Param[1];
    EXPECT_NE(Block(1).find(Line(12, "JL=" + NumberText(p.ratio) + "^2*" + NumberText(p.m1 + 1.5 + p.m2 + p.m3) +
                                         "+0.01^2*(" + NumberText(p.m2) + "*0.1^2/8+" + NumberText(p.m3) +
                                         "*0.04^2/8)")),
              std::string::npos);
}

TEST_F(GeneralParamTest, AnIndexOutsideTheTableUsesZeros) {
    WriteParamIni("[51]\nSet0=1\nSet1=ratio=[1]\n");
    Culcurate_All();
    EXPECT_EQ(Block(0), kHead + Line(12, "ratio=[1]") + Line(12, "ratio=0") + Line(17, "=0"));
}

TEST_F(GeneralParamTest, EveryTypeOfTheCatalogueHasItsFormulas) {
    InstallParamIni();
    for (const int16_t type : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 21, 31, 32, 33, 34, 41, 42}) {
        Chain({type});
        Culcurate_All();
        EXPECT_GT(Block(1).size(), kHead.size()) << type;
    }
    EXPECT_EQ(ReadFile(History_Path()), "");
}

TEST_F(GeneralParamTest, ABrokenCountReadsNoFurtherThanNinetyNineItems) {
    WriteParamIni("[1]\nSet0=2147483647\nSet1=ratio=[0]\n");
    Chain({1});
    Culcurate_All();
    Block(1);
    EXPECT_EQ(LogTexts(History_SiblingPath()).size(), 98u);  // items 2 to 99 are missing
}
