// The names put into a formula of Param.ini (reports/Substitute): constants, masses and inertias.
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "core/HistoryLog.h"
#include "reports/Substitute.h"
#include "tests/reports/ReportFixture.h"

namespace {

class SubstituteTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        Chain({11});
        for (int n = 0; n < 13; ++n) Element[1].Item[n].Value = n + 0.5;
        Element[0].Item[7].Value = 2.25;
        param.m1 = 1.5;
        param.m2 = 2.5;
        param.m3 = 3.5;
        param.inert1 = 0.75;
    }

    std::string Put(std::string formula, int16_t type = 11) {
        Results_Substitute(formula, type, 1, param);
        return formula;
    }

    ParamRecord param;
};

}  // namespace

TEST_F(SubstituteTest, PiAndGravityFirstOccurrenceOnly) {
    EXPECT_EQ(Put("p*p"), "3.14*p");
    EXPECT_EQ(Put("G+G"), "9.8+G");
}

TEST_F(SubstituteTest, SearchesIgnoreCase) {
    EXPECT_EQ(Put("g"), "9.8");
    EXPECT_EQ(Put("P"), "3.14");
    EXPECT_EQ(Put("M1+m1"), "1.5+1.5");
    EXPECT_EQ(Put("INERT1"), "0.75");
}

TEST_F(SubstituteTest, LettersInsideWordsAreReplacedAsWell) {
    EXPECT_EQ(Put("speed*gain"), "s3.14eed*9.8ain");
    EXPECT_EQ(Put("ratio"), "ratio");
}

TEST_F(SubstituteTest, EveryM1ButOnlyTheFirstM2M3AndInert1) {
    EXPECT_EQ(Put("m1+m1+m1"), "1.5+1.5+1.5");
    EXPECT_EQ(Put("m2+m2"), "2.5+m2");
    EXPECT_EQ(Put("m3+m3"), "3.5+m3");
    EXPECT_EQ(Put("inert1+inert1"), "0.75+inert1");
}

TEST_F(SubstituteTest, M1OfACartCarriesTheMotorMass) {
    EXPECT_EQ(Put("m1", 41), "3.75");
    EXPECT_EQ(Put("m1", 42), "3.75");
    EXPECT_EQ(Put("m1", 34), "1.5");
}

TEST_F(SubstituteTest, MotorMassLeavesABlankAndMassBehindTheNumber) {
    EXPECT_EQ(Put("Motor mass*2"), "2.25 mass*2");
    EXPECT_EQ(Put("[0]+Motor mass"), "0.5+2.25 mass");
}

TEST_F(SubstituteTest, RowsOfOneDigit) {
    EXPECT_EQ(Put("[0]^2*[4]/8"), "0.5^2*4.5/8");
    EXPECT_EQ(Put("[9]-[9]"), "9.5-9.5");
}

TEST_F(SubstituteTest, TwoDigitRowReadsTheFirstDigitAndLeavesTheBracket) {
    EXPECT_EQ(Put("[10]*2"), "1.5]*2");
}

TEST_F(SubstituteTest, ARowNumberThatIsNoDigitIsLogged) {
    EXPECT_EQ(Put("a[x]b"), "ab");
    EXPECT_EQ(LogTexts(History_Path()), std::vector<std::string>{" 13"});
}

TEST_F(SubstituteTest, ABracketAtTheEndIsLogged) {
    EXPECT_EQ(Put("2*["), "2*");
    EXPECT_EQ(LogTexts(History_Path()).size(), 1u);
}

TEST_F(SubstituteTest, NumbersAppearAsTheirGeneralText) {
    Element[1].Item[0].Value = 0.01;
    Element[1].Item[1].Value = 1.5e-20;
    EXPECT_EQ(Put("[0]/[1]"), "0.01/1.5E-20");
}

TEST_F(SubstituteTest, ReplacedNumbersAreNotSearchedAgainForLaterTokens) {
    param.m1 = 2.5e-5;
    EXPECT_EQ(Put("m1*[2]"), "2.5E-05*2.5");
}
