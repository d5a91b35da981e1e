// The example applications: made again by their recipes they are the same
// bytes, the README lists each with its motor, its driver and its verdicts,
// and torvane-cli sizes each as the README states.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <vector>

#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/support/CliRun.h"
#include "tests/support/TestState.h"

namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(TORVANE_SOURCE_DIR) / "examples";

struct Stated {
    std::string motor, driver;
    std::vector<std::string> verdicts;  // the seven sizing values in their order
};

std::string Trim(const std::string& s) {
    const auto a = s.find_first_not_of(" `"), b = s.find_last_not_of(" `");
    return a == std::string::npos ? "" : s.substr(a, b - a + 1);
}

// The rows of the README's example table: | `FILE.AP2` | what | motor | driver | seven verdicts |
std::map<std::string, Stated> Readme_Examples() {
    std::istringstream in(ReadFile(std::string(TORVANE_SOURCE_DIR) + "/README.md"));
    std::map<std::string, Stated> rows;
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("| `", 0) != 0 || line.find(".AP2`") == std::string::npos) continue;
        std::vector<std::string> cells;
        std::istringstream cellsIn(line.substr(1));
        for (std::string cell; std::getline(cellsIn, cell, '|');) cells.push_back(Trim(cell));
        if (cells.size() != 11) continue;
        rows[cells[0]] = {cells[2], cells[3], {cells.begin() + 4, cells.end()}};
    }
    return rows;
}

std::vector<std::string> Example_Files() {
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(kExamples))
        if (entry.path().extension() == ".AP2") files.push_back(entry.path().filename().string());
    return files;
}

class ExamplesTest : public StateTest {};

TEST_F(ExamplesTest, TheReadmeStatesEveryExampleAndThereAreAtLeastSix) {
    const auto stated = Readme_Examples();
    const auto files = Example_Files();
    EXPECT_GE(files.size(), 6u);
    EXPECT_EQ(stated.size(), files.size());
    for (const std::string& file : files) EXPECT_TRUE(stated.contains(file)) << file;
}

TEST_F(ExamplesTest, TheirRecipesMakeTheSameBytes) {
    TempDir out;
    const fs::path built = fs::path(TORVANE_CLI).parent_path();
    const std::string command = Quote(TORVANE_MAKE_EXAMPLES) + " " + Quote((built / "Series.db").string()) + " " +
                                Quote(out.Path()) + " 2>" + Quote(out.File("stderr.txt"));
    ASSERT_EQ(std::system(command.c_str()), 0) << ReadFile(out.File("stderr.txt"));
    for (const std::string& file : Example_Files())
        EXPECT_EQ(ReadFile(out.File(file)), ReadFile((kExamples / file).string())) << file;
}

TEST_F(ExamplesTest, EachSizesWithTheMotorDriverAndVerdictsTheReadmeStates) {
    for (const auto& [file, stated] : Readme_Examples()) {
        const std::string path = (kExamples / file).string();
        const CliRun run = RunCli(appDir, "size --json " + Quote(path));
        ASSERT_EQ(run.code, 0) << file << run.err;
        std::string verdicts;
        for (const std::string& v : stated.verdicts) verdicts += (verdicts.empty() ? "\"" : ",\"") + v + "\"";
        EXPECT_NE(run.out.find("\"verdicts\":[" + verdicts + "]"), std::string::npos) << file;
        ASSERT_TRUE(File_Load(path)) << file;
        EXPECT_EQ(MotorSelected, 1) << file;
        EXPECT_EQ(MotorModelText.Str(), stated.motor) << file;
        EXPECT_EQ(DriverModelText.Str(), stated.driver) << file;
    }
}

}  // namespace
