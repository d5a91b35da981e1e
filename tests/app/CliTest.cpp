// torvane-cli run as a separate process, as scripts and newcomers run it.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "commands/Activation.h"
#include "core/Tables.h"
#include "tests/support/CliRun.h"
#include "tests/support/JsonRead.h"
#include "tests/support/TestState.h"

namespace {

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// The line of the slot's header and the row lines below it, up to the next slot.
std::vector<std::string> SlotLines(const std::string& text, int slot) {
    std::vector<std::string> result;
    bool inside = false;
    for (const std::string& line : Lines(text)) {
        if (line.rfind("Slot ", 0) == 0) inside = line.rfind("Slot " + std::to_string(slot) + " ", 0) == 0;
        if (inside) result.push_back(line);
    }
    return result;
}

// The words of a line, split at blanks.
std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    std::istringstream in(line);
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

// The row line of a slot whose name is given; "" when there is none.
std::string RowLine(const std::string& text, int slot, const std::string& name) {
    for (const std::string& line : SlotLines(text, slot))
        if (line.find("  " + name + "  ") != std::string::npos) return line;
    return "";
}

// Default units of a fresh installation, as UTF-8 on the terminal.
const std::string kInertiaUnit = "kg\xC2\xB7m\xC2\xB2(GD2/4)";
const std::string kTorqueUnit = "N\xC2\xB7m";

class CliTest : public StateTest {};

TEST_F(CliTest, TemplateOnePrintsTheHorizontalBallscrewChain) {
    const CliRun r = RunCli(appDir, "template 1");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(Words(SlotLines(r.out, 0).at(0)), (std::vector<std::string>{"Slot", "0", "type", "51", "Motor"}));
    EXPECT_EQ(Words(SlotLines(r.out, 1).at(0)),
              (std::vector<std::string>{"Slot", "1", "type", "1", "Reduct.", "gear"}));
    EXPECT_EQ(Words(SlotLines(r.out, 2).at(0)),
              (std::vector<std::string>{"Slot", "2", "type", "11", "H", "ballscrew"}));
    EXPECT_EQ(Words(SlotLines(r.out, 3).at(0)), (std::vector<std::string>{"Slot", "3", "type", "31", "H", "linear"}));
    EXPECT_TRUE(SlotLines(r.out, 4).empty());
    // Rows in use only: the motor's ten, the reducer's three and its inertia row, ...
    EXPECT_EQ(SlotLines(r.out, 0).size(), 1u + 10u);
    EXPECT_EQ(SlotLines(r.out, 1).size(), 1u + 3u + 1u);
    EXPECT_EQ(SlotLines(r.out, 2).size(), 1u + 6u + 1u);
    EXPECT_EQ(SlotLines(r.out, 3).size(), 1u + 3u + 1u);
}

TEST_F(CliTest, TemplateOneRowsAreInTheDefaultUnits) {
    const CliRun r = RunCli(appDir, "template 1");
    ASSERT_EQ(r.code, 0) << r.err;
    // row, name, unit, text, value in the base unit
    EXPECT_EQ(Words(RowLine(r.out, 2, "Screw pitch")),
              (std::vector<std::string>{"0", "Screw", "pitch", "mm", "10", "0.01"}));  // 0.01 m / 0.001
    EXPECT_EQ(Words(RowLine(r.out, 2, "Screw length")),
              (std::vector<std::string>{"2", "Screw", "length", "mm", "600", "0.6"}));
    EXPECT_EQ(Words(RowLine(r.out, 2, "Trans. efficiency")),
              (std::vector<std::string>{"3", "Trans.", "efficiency", "%", "0.9", "0.9"}));
    EXPECT_EQ(Words(RowLine(r.out, 2, "Table mass")),
              (std::vector<std::string>{"4", "Table", "mass", "kg", "1", "1"}));
    EXPECT_EQ(Words(RowLine(r.out, 2, "Friction coef.")),
              (std::vector<std::string>{"5", "Friction", "coef.", "-", "0.1", "0.1"}));
    EXPECT_EQ(Words(RowLine(r.out, 1, "Reduction ratio")),
              (std::vector<std::string>{"0", "Reduction", "ratio", "OUT/IN", "1", "1"}));
    EXPECT_EQ(Words(RowLine(r.out, 1, "Input axis inertia")),
              (std::vector<std::string>{"2", "Input", "axis", "inertia", kInertiaUnit, ".0E+0", "0"}));
    EXPECT_EQ(Words(RowLine(r.out, 1, "Culculated inertia")),
              (std::vector<std::string>{"13", "Culculated", "inertia", kInertiaUnit, ".0E+0", "0"}));
    EXPECT_EQ(Words(RowLine(r.out, 3, "External load")),
              (std::vector<std::string>{"1", "External", "load", "N", "0", "0"}));
    EXPECT_EQ(Words(RowLine(r.out, 0, "Rotational speed")),
              (std::vector<std::string>{"1", "Rotational", "speed", "r/min", "0", "0"}));
    EXPECT_EQ(Words(RowLine(r.out, 0, "Rated torque")),
              (std::vector<std::string>{"3", "Rated", "torque", kTorqueUnit, "0", "0"}));
    EXPECT_EQ(Words(RowLine(r.out, 0, "Capacity")), (std::vector<std::string>{"0", "Capacity", "W", "0", "0"}));
}

TEST_F(CliTest, UnitPicksOfTheFileChangeWhatIsPrinted) {
    // Length in cm, mass in g.
    WriteFile(appDir.File("UnitInfo.dat"), "1\r\n1\r\n0\r\n1\r\n0\r\n0\r\n1\r\n0\r\n1\r\n1\r\n1\r\n");
    const CliRun r = RunCli(appDir, "template 1");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(Words(RowLine(r.out, 2, "Screw pitch")),
              (std::vector<std::string>{"0", "Screw", "pitch", "cm", "1", "0.01"}));  // 0.01 m / 0.01
    EXPECT_EQ(Words(RowLine(r.out, 2, "Table mass")),
              (std::vector<std::string>{"4", "Table", "mass", "g", "1000", "1"}));  // 1 kg / 0.001
}

TEST_F(CliTest, TemplateSevenPrintsTheRackAndPinionChain) {
    const CliRun r = RunCli(appDir, "template 7");
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(Words(SlotLines(r.out, 0).at(0)), (std::vector<std::string>{"Slot", "0", "type", "51", "Motor"}));
    EXPECT_EQ(Words(SlotLines(r.out, 1).at(0)),
              (std::vector<std::string>{"Slot", "1", "type", "1", "Reduct.", "gear"}));
    EXPECT_EQ(Words(SlotLines(r.out, 2).at(0)),
              (std::vector<std::string>{"Slot", "2", "type", "16", "Pinion&Rack"}));
    EXPECT_EQ(Words(SlotLines(r.out, 3).at(0)), (std::vector<std::string>{"Slot", "3", "type", "31", "H", "linear"}));
    EXPECT_TRUE(SlotLines(r.out, 4).empty());
    EXPECT_EQ(Words(RowLine(r.out, 2, "Pinion diameter")),
              (std::vector<std::string>{"0", "Pinion", "diameter", "mm", "40", "0.04"}));
    EXPECT_EQ(Words(RowLine(r.out, 2, "Pinion density")),
              (std::vector<std::string>{"2", "Pinion", "density", "g/cm\xC2\xB3", "7.8", "7.8"}));
}

TEST_F(CliTest, JsonOfTemplateOneHoldsTheSameChain) {
    const CliRun r = RunCli(appDir, "template 1 --json");
    ASSERT_EQ(r.code, 0) << r.err;
    Json doc;
    ASSERT_TRUE(Json_Parse(r.out, doc)) << r.out;
    EXPECT_EQ(doc["template"].number, 1);
    EXPECT_EQ(doc["name"].text, "Horizontal ballscrew");
    EXPECT_EQ(doc["elementCount"].number, 4);
    const Json& elements = doc["elements"];
    ASSERT_EQ(elements.items.size(), 4u);
    const double types[] = {51, 1, 11, 31};
    const char* labels[] = {"Motor", "Reduct. gear", "H ballscrew", "H linear"};
    const std::size_t rows[] = {10, 4, 7, 4};
    for (std::size_t slot = 0; slot < 4; ++slot) {
        EXPECT_EQ(elements[slot]["slot"].number, slot);
        EXPECT_EQ(elements[slot]["type"].number, types[slot]);
        EXPECT_EQ(elements[slot]["label"].text, labels[slot]);
        EXPECT_EQ(elements[slot]["rows"].items.size(), rows[slot]);
    }
    const Json& pitch = elements[2]["rows"][0];
    EXPECT_EQ(pitch["row"].number, 0);
    EXPECT_EQ(pitch["name"].text, "Screw pitch");
    EXPECT_EQ(pitch["unit"].text, "mm");
    EXPECT_EQ(pitch["text"].text, "10");
    EXPECT_EQ(pitch["value"].number, 0.01);
    const Json& inertia = elements[0]["rows"][2];
    EXPECT_EQ(inertia["name"].text, "Inertia");
    EXPECT_EQ(inertia["unit"].text, kInertiaUnit);
    EXPECT_EQ(inertia["text"].text, ".0E+0");
    const Json& last = elements[3]["rows"][3];
    EXPECT_EQ(last["row"].number, 13);
    EXPECT_EQ(last["name"].text, "Culculated inertia");
}

TEST_F(CliTest, JsonOfTemplateSevenHoldsTheRackAndPinion) {
    const CliRun r = RunCli(appDir, "template 7 --json");
    ASSERT_EQ(r.code, 0) << r.err;
    Json doc;
    ASSERT_TRUE(Json_Parse(r.out, doc)) << r.out;
    EXPECT_EQ(doc["name"].text, "Rack and pinion");
    ASSERT_EQ(doc["elements"].items.size(), 4u);
    EXPECT_EQ(doc["elements"][2]["type"].number, 16);
    EXPECT_EQ(doc["elements"][2]["label"].text, "Pinion&Rack");
    EXPECT_EQ(doc["elements"][2]["rows"][2]["unit"].text, "g/cm\xC2\xB3");
}

TEST_F(CliTest, EveryTemplateNumberRuns) {
    const std::size_t counts[] = {1, 4, 4, 3, 4, 3, 3, 4, 2, 2};
    for (int n = 0; n <= 9; ++n) {
        const CliRun r = RunCli(appDir, "template " + std::to_string(n) + " --json");
        ASSERT_EQ(r.code, 0) << n << r.err;
        Json doc;
        ASSERT_TRUE(Json_Parse(r.out, doc)) << n;
        EXPECT_EQ(doc["elements"].items.size(), counts[n]) << n;
        EXPECT_EQ(doc["elementCount"].number, counts[n]) << n;
    }
}

// The command line builds a template as the main window's activation does,
// recalculation included: every computed inertia is the one worked out here.
TEST_F(CliTest, EveryTemplateShowsTheInertiaItsActivationComputes) {
    for (int16_t n = 1; n <= 9; ++n) {
        SCOPED_TRACE(n);
        const CliRun r = RunCli(appDir, "template " + std::to_string(n) + " --json");
        ASSERT_EQ(r.code, 0) << r.err;
        Json doc;
        ASSERT_TRUE(Json_Parse(r.out, doc));
        State_Reset();
        MecaResult = 1;
        MecaTemplateNo = n;
        Main_Activate();
        int computed = 0;
        for (int slot = 1; slot < ElementCount; ++slot) {
            const Json& rows = doc["elements"][slot]["rows"];
            const Json& last = rows[rows.items.size() - 1];
            ASSERT_EQ(last["row"].number, 13);
            EXPECT_DOUBLE_EQ(last["value"].number, Element[slot].Item[13].Value) << slot;
            computed += Element[slot].Item[13].Value != 0;
        }
        EXPECT_GT(computed, 0);
    }
}

TEST_F(CliTest, TemplateBeyondNineIsBadUsage) {
    const CliRun r = RunCli(appDir, "template 10");
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.out.find("Slot"), std::string::npos);
    EXPECT_NE(r.err, "");
}

TEST_F(CliTest, TemplateThatIsNoNumberIsBadUsage) {
    const CliRun r = RunCli(appDir, "template x");
    EXPECT_EQ(r.code, 2);
    EXPECT_NE(r.err, "");
    EXPECT_EQ(RunCli(appDir, "template -1").code, 2);
    EXPECT_EQ(RunCli(appDir, "template").code, 2);
}

TEST_F(CliTest, NoArgumentsIsBadUsage) {
    const CliRun r = RunCli(appDir, "");
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.out.find("Slot"), std::string::npos);
}

TEST_F(CliTest, UnknownCommandIsBadUsage) { EXPECT_EQ(RunCli(appDir, "frobnicate").code, 2); }

TEST_F(CliTest, HelpExitsWithSuccess) {
    const CliRun r = RunCli(appDir, "--help");
    EXPECT_EQ(r.code, 0);
    EXPECT_NE(r.out.find("template"), std::string::npos);
}

TEST_F(CliTest, GarbledUnitFileIsToldAndTheChainStillPrints) {
    WriteFile(appDir.File("UnitInfo.dat"), "1\r\n0\r\nmm\r\n");
    const CliRun r = RunCli(appDir, "template 1");
    EXPECT_EQ(r.code, 0);
    EXPECT_NE(r.err.find(appDir.File("UnitInfo.dat")), std::string::npos) << r.err;
    EXPECT_EQ(Lines(r.err).size(), 1u) << r.err;
    EXPECT_EQ(Words(RowLine(r.out, 2, "Screw pitch")),
              (std::vector<std::string>{"0", "Screw", "pitch", "mm", "10", "0.01"}));
    EXPECT_EQ(SlotLines(r.out, 3).at(0).find("H linear") != std::string::npos, true);
}

TEST_F(CliTest, MissingUnitFileIsNoErrorAndIsCreatedEmpty) {
    const CliRun r = RunCli(appDir, "template 1");
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(ReadFile(appDir.File("UnitInfo.dat")), "");
}

}  // namespace

// The verdict word that opens the line of a model number in the judge output.
static std::string VerdictOf(const std::string& out, const std::string& model) {
    for (const std::string& line : Lines(out)) {
        const std::vector<std::string> w = Words(line);
        if (w.size() >= 2 && w[1] == model) return w[0];
    }
    return "";
}

TEST_F(CliTest, JudgeOfAPushingBallscrewShowsEveryVerdictOverTheBundledCatalogue) {
    const std::filesystem::path cli(TORVANE_CLI);
    std::filesystem::copy_file(cli.parent_path() / "Series.db", appDir.File("Series.db"));
    const std::string file = Quote(TORVANE_SOURCE_DIR "/tests/data/ballscrew-pushing-600N.AP2");
    const CliRun compact = RunCli(appDir, "judge " + file + " --series 'TVM-A Compact' --model 'Low inertia'");
    ASSERT_EQ(compact.code, 0) << compact.err;
    EXPECT_EQ(VerdictOf(compact.out, "TVM-A020S3"), "NG");    // the 600 N push is beyond its torque
    EXPECT_EQ(VerdictOf(compact.out, "TVM-A040S3"), "FAIR");  // effective torque above 80 % of rated
    EXPECT_EQ(VerdictOf(compact.out, "TVM-A075S3"), "OK");
    const CliRun earlier = RunCli(appDir, "judge " + file + " --series 'TVM-R Earlier models' --model 'Discontinued'");
    ASSERT_EQ(earlier.code, 0) << earlier.err;
    EXPECT_EQ(VerdictOf(earlier.out, "TVM-R150"), "-");       // data missing in the catalogue
}
