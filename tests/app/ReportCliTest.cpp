// torvane-cli report and series-list, run as a separate process: the filling as JSON, the PDF files and their pages, and the exit codes.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <regex>
#include <string>

#include "tests/support/CliRun.h"
#include "tests/support/TestState.h"

namespace fs = std::filesystem;

namespace {

const std::string kExample = TORVANE_SOURCE_DIR "/tests/data/horizontal-ballscrew.AP2";
const std::string kPushing = TORVANE_SOURCE_DIR "/tests/data/ballscrew-pushing-600N.AP2";

class ReportCliTest : public StateTest {
protected:
    void SetUp() override {
        StateTest::SetUp();
        // The program's folder as it is delivered: templates, pictures and catalogue.
        const fs::path build = fs::path(TORVANE_CLI).parent_path();
        for (const char* name : {"Title.svg", "Element.svg", "Move.svg", "Notes.svg", "Select.svg"})
            fs::copy_file(fs::path(TORVANE_SOURCE_DIR) / "data/app" / name, appDir.File(name));
        fs::create_directory_symlink(build / "BMP_data", appDir.File("BMP_data"));
        fs::copy_file(build / "Series.db", appDir.File("Series.db"));
    }

    CliRun Run(const std::string& args) const { return RunCli(appDir, args); }

    static int Pages(const std::string& pdf) {
        FILE* pipe = popen(("pdfinfo " + Quote(pdf) + " 2>/dev/null").c_str(), "r");
        if (!pipe) return -1;
        std::string info;
        char buffer[1024];
        for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) info.append(buffer, n);
        pclose(pipe);
        std::smatch m;
        return std::regex_search(info, m, std::regex(R"j(Pages:\s+(\d+))j")) ? std::stoi(m[1]) : -1;
    }

    static bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
};

}  // namespace

TEST_F(ReportCliTest, ObjectsListTheFillingAsJson) {
    const CliRun r = Run("report " + Quote(kExample) + " --objects --date 2026-11-14");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out.rfind("[\n{", 0), 0u);
    EXPECT_TRUE(r.out.size() > 3 && r.out.substr(r.out.size() - 3) == "\n]\n");
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Title.svg","call":"text","object":"Date","value":"Nov.14,2026"})j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Title.svg","call":"text","object":"PageNo","value":"(1/3)"})j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Element.svg","call":"hide","object":"Element4.No","value":""})j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Move.svg","call":"text","object":"Group1.Time","value":"0.100"})j"));
    EXPECT_TRUE(Holds(r.out, R"j("call":"picture","object":"Element1.Img","value":")j"));
    // Texts of the code page come out in UTF-8.
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Title.svg","call":"text","object":"Name","value":"J. Lef)j" "\xC3\xA8" R"j(vre"})j"));
    // Every entry has the four fields, in this order.
    const std::regex entry(R"j(\{"template":"[A-Za-z]+\.svg","call":"(text|hide|picture)","object":"[^"]+","value":"(?:[^"\\]|\\.)*"\})j");
    int entries = 0;
    std::size_t start = 2;
    for (std::size_t end; (end = r.out.find('\n', start)) != std::string::npos && end + 2 < r.out.size(); start = end + 1) {
        std::string line = r.out.substr(start, end - start);
        if (!line.empty() && line.back() == ',') line.pop_back();
        EXPECT_TRUE(std::regex_match(line, entry)) << line;
        ++entries;
    }
    EXPECT_GT(entries, 900);
    // No engine call but the filling shows.
    EXPECT_FALSE(Holds(r.out, "wrPrint"));
    EXPECT_FALSE(Holds(r.out, "\"call\":\"wr"));
}

TEST_F(ReportCliTest, PartFlagsChooseTheTemplates) {
    const CliRun r = Run("report " + Quote(kExample) + " --objects --date 2026-11-14 --notes --patterns");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_FALSE(Holds(r.out, "\"template\":\"Title.svg\""));
    EXPECT_FALSE(Holds(r.out, "\"template\":\"Element.svg\""));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Move.svg","call":"text","object":"PageNo","value":"(1/1)"})j"));
}

TEST_F(ReportCliTest, ReportWritesAPdfWithThePagesOfTheCheckedParts) {
    const std::string pdf = appDir.File("report.pdf");
    const CliRun r = Run("report " + Quote(kExample) + " " + Quote(pdf) + " --date 2026-11-14");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(Pages(pdf), 3);  // cover, one page of components, patterns
    const std::string all = appDir.File("all.pdf");
    ASSERT_EQ(Run("report " + Quote(kExample) + " " + Quote(all) + " --cover --components --patterns --notes").code, 0);
    EXPECT_EQ(Pages(all), 4);
    const std::string cover = appDir.File("cover.pdf");
    ASSERT_EQ(Run("report " + Quote(kExample) + " " + Quote(cover) + " --cover").code, 0);
    EXPECT_EQ(Pages(cover), 1);
}

TEST_F(ReportCliTest, WithoutOutputOrObjectsItExitsWithTwo) {
    const CliRun r = Run("report " + Quote(kExample));
    EXPECT_EQ(r.code, 2);
    EXPECT_FALSE(r.err.empty());
    EXPECT_TRUE(r.out.empty());
    EXPECT_EQ(Run("series-list " + Quote(kPushing) + " --series 'TVM-A Compact' --model 'Low inertia'").code, 2);
}

TEST_F(ReportCliTest, ABadDateExitsWithTwo) {
    for (const char* date : {"2026-13-01", "2026-11-32", "14.11.2026", "2026-1-5", "tomorrow"}) {
        const CliRun r = Run("report " + Quote(kExample) + " --objects --date " + Quote(date));
        EXPECT_EQ(r.code, 2) << date;
        EXPECT_TRUE(r.out.empty()) << date;
    }
}

TEST_F(ReportCliTest, AMissingFileExitsWithOne) {
    const std::string pdf = appDir.File("missing.pdf");
    const CliRun r = Run("report " + Quote(appDir.File("none.AP2")) + " " + Quote(pdf));
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(Holds(r.err, "File read failed."));
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(ReportCliTest, APdfThatCannotBeWrittenExitsWithOne) {
    const CliRun r = Run("report " + Quote(kExample) + " " + Quote(appDir.File("no/such/folder.pdf")));
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(Holds(r.err, "could not be written"));
}

TEST_F(ReportCliTest, SeriesListOfAnUnknownSeriesOrGroupExitsWithOne) {
    const std::string pdf = appDir.File("list.pdf");
    CliRun r = Run("series-list " + Quote(kPushing) + " --series 'No such series' --model 'Low inertia' " + Quote(pdf));
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(Holds(r.err, "No such series"));
    r = Run("series-list " + Quote(kPushing) + " --series 'TVM-A Compact' --model 'No such group' " + Quote(pdf));
    EXPECT_EQ(r.code, 1);
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(ReportCliTest, SeriesListWritesAOnePagePdf) {
    const std::string pdf = appDir.File("list.pdf");
    const CliRun r = Run("series-list " + Quote(kPushing) + " --series 'TVM-A Compact' --model 'Low inertia' " +
                         Quote(pdf) + " --date 2026-11-14");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(Pages(pdf), 1);
}

TEST_F(ReportCliTest, SeriesListObjectsShowTheJudgedRows) {
    const CliRun r = Run("series-list " + Quote(kPushing) +
                         " --series 'TVM-A Compact' --model 'Low inertia' --objects --date 2026-11-14");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Select.svg","call":"text","object":"Series","value":"TVM-A Compact"})j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Select.svg","call":"text","object":"Date","value":"Nov.14,2026"})j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Select.svg","call":"text","object":"SelectMtr0.Judge","value":")j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Select.svg","call":"text","object":"PageNo","value":"(1/1)"})j"));
    EXPECT_TRUE(Holds(r.out, R"j({"template":"Select.svg","call":"hide","object":"SelectMtr19.","value":""})j"));
    EXPECT_FALSE(Holds(r.out, "Unit.Judge"));
}
