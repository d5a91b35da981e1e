// torvane-cli recommend: the ranked pairs of the whole catalogue as text and JSON.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "persist/mdlFile.h"
#include "selection/MotorJudge.h"
#include "selection/Recommend.h"
#include "selection/mdlDataBase.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/support/CliRun.h"
#include "tests/support/JsonRead.h"

namespace {

const std::string kPushing = TORVANE_SOURCE_DIR "/tests/data/ballscrew-pushing-600N.AP2";
const std::string kHorizontal = TORVANE_SOURCE_DIR "/tests/data/horizontal-ballscrew.AP2";

class RecommendCliTest : public SeriesDbTest {
protected:
    void Bundled() { std::filesystem::copy_file(Catalogue_Bundled(), appDir.File("Series.db")); }

    Json RunJson(const std::string& args) {
        const CliRun r = RunCli(appDir, "recommend " + args + " --json");
        EXPECT_EQ(r.code, 0) << r.err;
        Json doc;
        EXPECT_TRUE(Json_Parse(r.out, doc)) << r.out;
        return doc;
    }

    // The same recommendation worked out in this process.
    RecommendResult InProcess(const std::string& file, const RecommendOptions& options) {
        EXPECT_TRUE(File_Load(file));
        Series_Connect();
        return Recommend(options);
    }
};

// A number of the JSON as the core's: null for NaN and a missing capacity.
void ExpectNumber(const Json& j, double x) {
    if (std::isnan(x)) {
        EXPECT_EQ(j.kind, Json::Null);
    } else {
        ASSERT_EQ(j.kind, Json::Number);
        EXPECT_DOUBLE_EQ(j.number, x);
    }
}

TEST_F(RecommendCliTest, JsonHoldsTheCoreResultBestFirst) {
    Bundled();
    const Json doc = RunJson(Quote(kPushing));
    const RecommendResult expected = InProcess(kPushing, {});
    ASSERT_FALSE(expected.pairs.empty());
    const Json& results = doc["results"];
    ASSERT_EQ(results.items.size(), expected.pairs.size());
    for (std::size_t i = 0; i < results.items.size(); ++i) {
        const Json& got = results[i];
        const Recommendation& want = expected.pairs[i];
        EXPECT_EQ(got["series"].text, want.series);
        EXPECT_EQ(got["model"].text, want.model);
        EXPECT_EQ(got["motor"].text, want.motor);
        EXPECT_EQ(got["driver"].text, want.driver);
        ExpectNumber(got["capacity"], want.capacity.value_or(std::nan("")));
        EXPECT_EQ(got["verdict"].text, want.verdict);
        EXPECT_EQ(got["tightest"].text, kLimitNames.at(want.tightest).key);
        ExpectNumber(got["ratio"], want.Ratio());
        ASSERT_EQ(got["ratios"].fields.size(), 5u);
        for (std::size_t r = 0; r < 5; ++r) ExpectNumber(got["ratios"][std::string(kLimitNames[r].key)], want.ratios[r]);
    }
    ExpectNumber(doc["skipped"], expected.skipped);
}

TEST_F(RecommendCliTest, TopAndIncludeFairAreHonoured) {
    Bundled();
    EXPECT_EQ(RunJson(Quote(kPushing) + " --top 3")["results"].items.size(), 3u);
    // The 400 W compact motor takes the 600 N push with its effective torque above 80 % of rated.
    const auto Has = [](const Json& results, const std::string& motor) {
        for (const Json& r : results.items)
            if (r["motor"].text == motor) return r["verdict"].text;
        return std::string();
    };
    EXPECT_EQ(Has(RunJson(Quote(kPushing) + " --top 1000")["results"], "TVM-A040S3"), "");
    EXPECT_EQ(Has(RunJson(Quote(kPushing) + " --top 1000 --include-fair")["results"], "TVM-A040S3"), "FAIR");
}

TEST_F(RecommendCliTest, ABlankCapacityIsNullAndRanksLastAndAFailingRowIsCounted) {
    // Limits far beyond any load: every motor passes but the one without a rotor inertia.
    Catalogue_Build(appDir.Path(),
                    "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1); INSERT INTO ModelMaster VALUES (10, 'G', 1);"
                    "INSERT INTO MotorTable VALUES (1, 1, 'BLANK', NULL, 1e6, 1e-4, 1e6, 1e6, 1e6, 1, 0, NULL),"
                    " (1, 1, 'BIG', 9000, 1e6, 1e-4, 1e6, 1e6, 1e6, 1, 0, NULL),"
                    " (1, 1, 'ZERO', 50, 1e6, 0, 1e6, 1e6, 1e6, 1, 0, NULL);"
                    "INSERT INTO DriverTypeMaster VALUES (1, 'ok', 'ng', 0, 2);"
                    "INSERT INTO DriverTable VALUES ('D', NULL, NULL, 1, '', '', '');"
                    "INSERT INTO MotorDriverTable VALUES ('BLANK', 'D'), ('BIG', 'D'), ('ZERO', 'D');");
    const Json doc = RunJson(Quote(kHorizontal));
    ASSERT_EQ(doc["results"].items.size(), 2u);
    EXPECT_EQ(doc["results"][0]["motor"].text, "BIG");
    EXPECT_EQ(doc["results"][1]["motor"].text, "BLANK");
    EXPECT_EQ(doc["results"][1]["capacity"].kind, Json::Null);
    EXPECT_EQ(doc["skipped"].number, 1);
}

TEST_F(RecommendCliTest, TextShowsTheGridAndTheRowsSkipped) {
    Bundled();
    const CliRun r = RunCli(appDir, "recommend " + Quote(kPushing) + " --top 2");
    ASSERT_EQ(r.code, 0) << r.err;
    const RecommendResult expected = InProcess(kPushing, {false, 2});
    ASSERT_EQ(expected.pairs.size(), 2u);
    const std::string first = r.out.substr(0, r.out.find('\n'));
    EXPECT_NE(first.find("Series"), std::string::npos) << r.out;
    EXPECT_NE(first.find("Tightest limit"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find(expected.pairs[1].motor), std::string::npos) << r.out;
    EXPECT_NE(r.out.find(kLimitNames.at(expected.pairs[0].tightest).caption), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("Skipped catalogue rows: 0\n"), std::string::npos) << r.out;
}

TEST_F(RecommendCliTest, NothingPassingIsSaidAndIsNoError) {
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);");
    const CliRun text = RunCli(appDir, "recommend " + Quote(kHorizontal));
    ASSERT_EQ(text.code, 0) << text.err;
    EXPECT_NE(text.out.find(std::string(kNothingPasses)), std::string::npos) << text.out;
    const CliRun json = RunCli(appDir, "recommend " + Quote(kHorizontal) + " --json");
    EXPECT_EQ(json.out, "{\"results\":[],\"skipped\":0}\n");
}

TEST_F(RecommendCliTest, BadUsageIsToldWithCodeTwo) {
    Bundled();
    EXPECT_EQ(RunCli(appDir, "recommend " + Quote(kPushing) + " --top 0").code, 2);
    EXPECT_EQ(RunCli(appDir, "recommend " + Quote(kPushing) + " --top many").code, 2);
    EXPECT_EQ(RunCli(appDir, "recommend").code, 2);
}

TEST_F(RecommendCliTest, AFileThatCannotBeReadEndsWithCodeOne) {
    Bundled();
    WriteFile(appDir.File("broken.AP2"), "not an application file");
    const CliRun r = RunCli(appDir, "recommend " + Quote(appDir.File("broken.AP2")));
    EXPECT_EQ(r.code, 1);
}

}  // namespace
