// The recommendation over small catalogues whose right answer is known by
// construction: which pairs pass, how they rank, the ratios they carry, the
// rows skipped, and the document and the wizard left as they were.
#include "selection/Recommend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "core/Tables.h"
#include "selection/DriverJudge.h"
#include "selection/MotorJudge.h"
#include "selection/MotorPage.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"

namespace {

constexpr double kJm = 1e-4;
constexpr double kMass = 2;

// Series "S" (groups "G" and "H") and "T" (group "K"); driver type 1 turns
// a broken limit into "NG", type 2 into "FAIR"; the driver "DF" has no
// limits and fits every motor the test names.
const std::string kLists =
    "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1), ('T', 20, 2);"
    "INSERT INTO ModelMaster VALUES (10, 'G', 1), (10, 'H', 2), (20, 'K', 1);"
    "INSERT INTO DriverTypeMaster VALUES (1, 'ok1', 'ng1', 0, 2), (2, 'ok2', 'ng2', 0, 1);"
    "INSERT INTO DriverTable VALUES ('DF', NULL, NULL, 1, 'Pulse', '200', 'Three-phase');";

struct Motor {
    std::string model, capacity;  // capacity as SQL text
    double rated, maximum, speed, inertia, ratio;
    int series = 1, group = 1;
};

std::string Row(const Motor& m) {
    return "INSERT INTO MotorTable VALUES (" + std::to_string(m.series) + ", " + std::to_string(m.group) + ", '" +
           m.model + "', " + m.capacity + ", " + Sql(m.speed) + ", " + Sql(m.inertia) + ", " + Sql(m.rated) + ", " +
           Sql(m.maximum) + ", " + Sql(m.ratio) + ", " + Sql(kMass) + ", 0, NULL);";
}

std::string Fits(const std::string& motor, const std::string& driver = "DF") {
    return "INSERT INTO MotorDriverTable VALUES ('" + motor + "', '" + driver + "');";
}

class RecommendTest : public SeriesDbTest {
protected:
    void SetUp() override {
        SeriesDbTest::SetUp();
        Document_Sized();
        v = Trial(kJm, kMass);
    }

    // A motor with ten times the room on every limit but the speed, which
    // the load takes the given share of.
    Motor Roomy(const std::string& model, const std::string& capacity, double speedShare, int series = 1,
                int group = 1) const {
        return {model, capacity, 10 * std::max(v.T1, v.T3), 10 * v.T2, v.N / speedShare, kJm, 10 * v.JL / kJm,
                series, group};
    }

    // Builds the lists, the motors (each fitting "DF") and the extra rows, and connects.
    RecommendResult Run(const std::vector<Motor>& motors, const std::string& extra = "",
                        RecommendOptions options = {}) {
        std::string rows = kLists + extra;
        for (const Motor& m : motors) rows += Row(m) + Fits(m.model);
        Build(rows);
        Series_Connect();
        return Recommend(options);
    }

    static std::vector<std::string> Motors(const RecommendResult& r) {
        std::vector<std::string> names;
        for (const Recommendation& pair : r.pairs) names.push_back(pair.motor);
        return names;
    }

    TrialValues v{};
};

TEST_F(RecommendTest, TheSmallestMotorThatPassesComesFirstWhereverItStands) {
    const RecommendResult r = Run({Roomy("A100", "100", 2.0), Roomy("A400", "400", 0.5),
                                   Roomy("B300", "300", 0.5, 1, 2), Roomy("C200", "200", 0.5, 2, 1)});
    EXPECT_EQ(Motors(r), (std::vector<std::string>{"C200", "B300", "A400"}));  // A100 runs too fast
    EXPECT_EQ(r.skipped, 0);
    const Recommendation& best = r.pairs.at(0);
    EXPECT_EQ(best.series, "T");
    EXPECT_EQ(best.model, "K");
    EXPECT_EQ(best.driver, "DF");
    EXPECT_EQ(best.verdict, "OK");
    EXPECT_EQ(best.capacity, 200);
    EXPECT_EQ(best.seriesIndex, 1);
    EXPECT_EQ(best.modelIndex, 0);
    EXPECT_EQ(best.row, kFixedRows);
    EXPECT_EQ(r.pairs.at(1).modelIndex, 1);
    EXPECT_EQ(r.pairs.at(2).row, kFixedRows + 1);  // behind A100 in its group
}

TEST_F(RecommendTest, ATieOnCapacityGoesToTheMotorWithTheMostRoom) {
    const RecommendResult r = Run({Roomy("TIGHT", "200", 0.9), Roomy("ROOMY", "200", 0.6)});
    ASSERT_EQ(Motors(r), (std::vector<std::string>{"ROOMY", "TIGHT"}));
    EXPECT_EQ(r.pairs[0].tightest, 3);
    EXPECT_NEAR(r.pairs[0].Ratio(), 0.6, 1e-12);
    EXPECT_NEAR(r.pairs[1].Ratio(), 0.9, 1e-12);
}

TEST_F(RecommendTest, EachPairCarriesTheFiveRatiosOfTheLoadToTheLimits) {
    const Motor m{"M", "400", 2 * v.T1, 3 * v.T2, 4 * v.N, kJm, 5 * v.JL / kJm};
    const RecommendResult r = Run({m});
    ASSERT_EQ(r.pairs.size(), 1u);
    const std::array<double, 5>& ratios = r.pairs[0].ratios;
    EXPECT_NEAR(ratios[0], v.T1 / (0.8 * m.rated), 1e-12);
    EXPECT_NEAR(ratios[1], v.T3 / (0.7 * m.rated), 1e-12);
    EXPECT_NEAR(ratios[2], v.T2 / (0.8 * m.maximum), 1e-12);
    EXPECT_NEAR(ratios[3], 0.25, 1e-12);
    EXPECT_NEAR(ratios[4], 0.2, 1e-12);
    const auto largest = std::ranges::max_element(ratios) - ratios.begin();
    EXPECT_EQ(r.pairs[0].tightest, largest);
    EXPECT_EQ(r.pairs[0].Ratio(), ratios[largest]);
}

TEST_F(RecommendTest, AMotorWhoseEveryDriverFailsOnRegenerationMakesNoPair) {
    ASSERT_GT(v.peak, 0);
    const std::string small = "INSERT INTO DriverTable VALUES ('DN1', " + Sql(v.peak / 2) + ", NULL, 1, '', '', ''),"
                              " ('DN2', NULL, " + Sql(v.mean / 2) + ", 1, '', '', '');";
    const RecommendResult r = Run({Roomy("OTHER", "400", 0.5)}, small + Row(Roomy("LONELY", "100", 0.5)) +
                                                                    Fits("LONELY", "DN1") + Fits("LONELY", "DN2"));
    EXPECT_EQ(Motors(r), std::vector<std::string>{"OTHER"});
    EXPECT_EQ(r.skipped, 0);
}

TEST_F(RecommendTest, ADriverTypeThatTakesABrokenLimitAsFairPassesOnlyWhenAsked) {
    const std::string fair = "INSERT INTO DriverTable VALUES ('DR', " + Sql(v.peak / 2) + ", NULL, 2, '', '', '');" +
                             Row(Roomy("RES", "100", 0.5)) + Fits("RES", "DR");
    EXPECT_TRUE(Run({}, fair).pairs.empty());
    const RecommendResult r = Recommend({true, 10});
    ASSERT_EQ(r.pairs.size(), 1u);
    EXPECT_EQ(r.pairs[0].driver, "DR");
    EXPECT_EQ(r.pairs[0].verdict, "FAIR");
}

TEST_F(RecommendTest, AFairMotorPassesOnlyWhenAskedAndRanksByItsCapacity) {
    Motor fair = Roomy("FAIR", "100", 0.5);
    fair.maximum = v.T2 / 0.9;  // the maximum torque in the marginal band
    const RecommendResult strict = Run({fair, Roomy("OK", "200", 0.5)});
    EXPECT_EQ(Motors(strict), std::vector<std::string>{"OK"});
    const RecommendResult lenient = Recommend({true, 10});
    ASSERT_EQ(Motors(lenient), (std::vector<std::string>{"FAIR", "OK"}));
    EXPECT_EQ(lenient.pairs[0].verdict, "FAIR");
    EXPECT_EQ(lenient.pairs[0].tightest, 2);
    EXPECT_NEAR(lenient.pairs[0].Ratio(), 0.9 / 0.8, 1e-12);
}

TEST_F(RecommendTest, ARowThatWouldDivideByZeroIsSkippedAndCounted) {
    Motor broken = Roomy("ZERO", "50", 0.5);
    broken.inertia = 0;  // an allowable ratio without a rotor inertia
    const RecommendResult r = Run({broken, Roomy("NEXT", "100", 0.5)});
    EXPECT_EQ(Motors(r), std::vector<std::string>{"NEXT"});
    EXPECT_EQ(r.skipped, 1);
    EXPECT_EQ(r.pairs[0].row, kFixedRows + 1);
}

TEST_F(RecommendTest, ADriverOfAnUnknownTypeIsSkippedAndCounted) {
    const RecommendResult r = Run({Roomy("M", "100", 0.5)},
                                  "INSERT INTO DriverTable VALUES ('DX', NULL, NULL, 9, '', '', '');" + Fits("M", "DX"));
    ASSERT_EQ(r.pairs.size(), 1u);
    EXPECT_EQ(r.pairs[0].driver, "DF");
    EXPECT_EQ(r.skipped, 1);
}

TEST_F(RecommendTest, NothingPassingGivesAnEmptyResult) {
    const RecommendResult r = Run({Roomy("FAST", "100", 2.0), Roomy("FASTER", "200", 3.0)});
    EXPECT_TRUE(r.pairs.empty());
    EXPECT_EQ(r.skipped, 0);
}

TEST_F(RecommendTest, WithoutAPatternNothingPasses) {
    PatternRowCount = 0;
    EXPECT_TRUE(Run({Roomy("M", "100", 0.5)}).pairs.empty());
}

TEST_F(RecommendTest, AMotorWithABlankCapacityRanksAfterEveryMotorWithOne) {
    const RecommendResult r = Run({Roomy("BLANK", "NULL", 0.1), Roomy("BIG", "5000", 0.9)});
    ASSERT_EQ(Motors(r), (std::vector<std::string>{"BIG", "BLANK"}));
    EXPECT_FALSE(r.pairs[1].capacity.has_value());
}

TEST_F(RecommendTest, TopKeepsTheBestPairs) {
    const RecommendResult r =
        Run({Roomy("A", "300", 0.5), Roomy("B", "100", 0.5), Roomy("C", "200", 0.5)}, "", {false, 2});
    EXPECT_EQ(Motors(r), (std::vector<std::string>{"B", "C"}));
}

TEST_F(RecommendTest, AMotorPairsWithEachOfItsDriversThatPasses) {
    const RecommendResult r = Run({Roomy("M", "100", 0.5)},
                                  "INSERT INTO DriverTable VALUES ('DA', NULL, NULL, 1, '', '', '');" + Fits("M", "DA"));
    ASSERT_EQ(r.pairs.size(), 2u);
    EXPECT_EQ(r.pairs[0].driver, "DA");  // the drivers query's order
    EXPECT_EQ(r.pairs[1].driver, "DF");
}

TEST_F(RecommendTest, AModelNumberWithAQuoteMakesNoPairSinceTheDriverPageFindsNoDriver) {
    const RecommendResult r = Run({}, Row(Roomy("Q''1", "100", 0.5)) + Fits("Q''1"));
    EXPECT_TRUE(r.pairs.empty());
}

TEST_F(RecommendTest, TheDocumentAndTheWizardStayAsTheyWere) {
    Build(kLists + Row(Roomy("A", "100", 0.5)) + Row(Roomy("B", "200", 0.9)) + Fits("A") + Fits("B"));
    MotorPage page;
    MotorPage_Load(page);
    MotorPage_PickSeries(page, 0);
    MotorPage_Judge(page);
    MotorPage_MoveToRow(page, kFixedRows + 1);
    MotorRecordset.MoveFirst();
    MotorRecordset.Move(1);
    SelectedMotorModel = "B";
    CandidateJm = 3e-4;
    Comment_Judge_Set();
    const PatarnTable patarn = Patarn, trial = PatarnTrial;
    const auto results = ResultValues;
    const auto types = DriverTypes.size();
    const auto flags = std::tuple(CurrentSeriesFlg, CurrentSeriesID, CurrentModelFlg, MotorRowCount, SeriesFlgList,
                                  ModelFlgList, MotorSelected, SelectedJm, SelectedJb, SelectedMotorMass);

    ASSERT_EQ(Recommend({}).pairs.size(), 2u);

    EXPECT_EQ(std::memcmp(&patarn, &Patarn, sizeof patarn), 0);
    EXPECT_EQ(std::memcmp(&trial, &PatarnTrial, sizeof trial), 0);
    EXPECT_EQ(results, ResultValues);
    EXPECT_EQ(flags, std::tuple(CurrentSeriesFlg, CurrentSeriesID, CurrentModelFlg, MotorRowCount, SeriesFlgList,
                                ModelFlgList, MotorSelected, SelectedJm, SelectedJb, SelectedMotorMass));
    EXPECT_EQ(MotorRecordset.Field("MotorModel").Text(), "B");
    EXPECT_EQ(SelectedMotorModel, "B");
    EXPECT_EQ(CandidateJm, 3e-4);
    EXPECT_EQ(DriverTypes.size(), types);
    EXPECT_EQ(page.vsfData.Cell(kFixedRows, 0).text, "OK");
}

TEST_F(RecommendTest, TheMotorPagePicksARecommendationWhereItStands) {
    Run({Roomy("A", "300", 0.5), Roomy("C", "200", 0.5, 2, 1), Roomy("D", "100", 0.5, 2, 1)});
    MotorPage page;
    MotorPage_Load(page);
    for (const Recommendation& pair : Recommend({}).pairs) {
        ASSERT_TRUE(MotorPage_Pick(page, pair.seriesIndex, pair.modelIndex, pair.row));
        EXPECT_EQ(page.lstS[page.lstSIndex], pair.series);
        EXPECT_EQ(page.lstM[page.lstMIndex], pair.model);
        EXPECT_EQ(page.vsfData.Cell(page.Row, 1).text, pair.motor);
    }
    EXPECT_FALSE(MotorPage_Pick(page, 2, 0, kFixedRows));
    EXPECT_FALSE(MotorPage_Pick(page, 0, 2, kFixedRows));
    EXPECT_FALSE(MotorPage_Pick(page, 0, 0, kFixedRows + 1));
    EXPECT_FALSE(MotorPage_Pick(page, 0, 0, kFixedRows - 1));
}

}  // namespace
