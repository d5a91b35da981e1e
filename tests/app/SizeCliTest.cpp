// torvane-cli size, run as a separate process.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>

#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/persist/Documents.h"
#include "tests/persist/FileBytes.h"
#include "tests/persist/OlderFile.h"
#include "tests/support/HostilePaths.h"
#include "tests/support/TestState.h"

namespace {

// A number as the JSON form writes it: 17 significant digits.
std::string Json_Number(double x) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.17g", x);
    return buf;
}

class SizeCliTest : public StateTest {
protected:
    // Runs "torvane-cli size" with the arguments; fills out and err.
    int RunSize(const std::string& args) {
        const std::string command = "TORVANE_APP_PATH='" + appDir.Path() + "' '" TORVANE_CLI "' size " + args +
                                    " >'" + appDir.File("out.txt") + "' 2>'" + appDir.File("err.txt") + "'";
        const int status = std::system(command.c_str());
        out = ReadFile(appDir.File("out.txt"));
        err = ReadFile(appDir.File("err.txt"));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string Saved() {
        const std::string path = appDir.File("doc.AP2");
        EXPECT_TRUE(File_Save(path));
        return "'" + path + "'";
    }

    bool Holds(const std::string& part) const { return out.find(part) != std::string::npos; }

    std::string out, err;
};

}  // namespace

TEST_F(SizeCliTest, JsonHoldsTheNumbersOfTheOpenedDocument) {
    Document_Golden();
    const std::string file = Saved();
    State_Reset();
    ASSERT_TRUE(File_Load(appDir.File("doc.AP2")));
    ASSERT_EQ(RunSize(file + " --json"), 0) << err;
    EXPECT_EQ(out.rfind("{\"elementCount\":4,\"motorSelected\":1,\"loadMotion\":0,\"loadInertiaTotal\":", 0), 0u);
    EXPECT_TRUE(Holds("\"loadInertiaTotal\":" + Json_Number(LoadInertiaTotal) + ","));
    EXPECT_TRUE(Holds("\"totalRatio\":" + Json_Number(TotalRatio) + ",\"patternRowCount\":3,\"params\":[{\"slot\":1,"));
    EXPECT_TRUE(Holds("{\"slot\":4,\"m1\":" + Json_Number(Param[4].m1)));
    EXPECT_FALSE(Holds("{\"slot\":5,"));
    EXPECT_TRUE(Holds("\"elements\":[{\"slot\":0,\"type\":51,\"inputMode\":0,\"directValue\":0,\"values\":[400,3000,"));
    EXPECT_TRUE(Holds("{\"slot\":2,\"type\":11,\"inputMode\":1,\"directValue\":" + Json_Number(Element[2].DirectValue)));
    EXPECT_TRUE(Holds("{\"row\":3,\"time\":0.69999999999999996,\"deltaTime\":0.10000000000000001,\"speed\":0,"));
    EXPECT_TRUE(Holds("\"torque\":" + Json_Number(Patarn[1].Torque) + ","));
    EXPECT_TRUE(Holds("{\"row\":20,\"time\":0,"));
    EXPECT_TRUE(Holds("\"cul\":[" + Json_Number(ResultValues[Cul][0]) + ","));
    EXPECT_TRUE(Holds("\"rate\":[" + Json_Number(1.27) + "," + Json_Number(4.46) + ",3000," + Json_Number(2.63e-5) +
                      ",18,12," + Json_Number(1.27) + "]"));
    EXPECT_TRUE(Holds("\"hantei\":[1,1,1,1,1,1,1],\"verdicts\":[\"OK\",\"OK\",\"OK\",\"OK\",\"OK\",\"OK\",\"OK\"]}}\n"));
}

TEST_F(SizeCliTest, TextShowsChainPatternAndVerdicts) {
    Document_Golden();
    ASSERT_EQ(RunSize(Saved()), 0) << err;
    EXPECT_TRUE(Holds("Slot 2  type 11  H ballscrew"));
    EXPECT_TRUE(Holds("Screw pitch"));
    EXPECT_TRUE(Holds("Operating pattern (3 complete rows)"));
    EXPECT_TRUE(Holds("Effective torque"));
    EXPECT_TRUE(Holds("N\xC2\xB7mm"));  // the file's torque unit, in UTF-8
    EXPECT_TRUE(Holds("OK\n"));
}

TEST_F(SizeCliTest, ValueThatCannotBeComputedShowsOver) {
    Document_Golden();
    Patarn[1].Speed = 1e300;
    Patarn[2].Speed = -1e300;
    ASSERT_EQ(RunSize(Saved()), 0) << err;
    EXPECT_TRUE(Holds("OVER"));
}

TEST_F(SizeCliTest, OlderFileIsSizedToo) {
    WriteFile(appDir.File("older.AP2"), OlderFile());
    ASSERT_EQ(RunSize("'" + appDir.File("older.AP2") + "' --json"), 0) << err;
    EXPECT_TRUE(Holds("\"rate\":[" + Json_Number(0.64) + "," + Json_Number(1.91) + ",3000,"));
}

TEST_F(SizeCliTest, UnreadableFileExitsWithOneAndTheMessage) {
    EXPECT_EQ(RunSize("'" + appDir.File("none.AP2") + "'"), 1);
    EXPECT_NE(err.find("File read failed."), std::string::npos);
    EXPECT_TRUE(out.empty());
}

TEST_F(SizeCliTest, APathThatIsNoFileExitsWithOneAndTheMessage) {
    for (const std::string& path : {Path_Folder(appDir.File("folder.AP2")), Path_Fifo(appDir.File("fifo.AP2")),
                                    Path_EndlessDevice(appDir.File("zero.AP2")), std::string("/dev/zero")}) {
        SCOPED_TRACE(path);
        EXPECT_EQ(RunSize("'" + path + "'"), 1);
        EXPECT_NE(err.find("File read failed."), std::string::npos) << err;
        EXPECT_TRUE(out.empty());
    }
}

TEST_F(SizeCliTest, DamagedFileExitsWithOne) {
    Document_Golden();
    std::string b = File_Bytes();
    PutI16(b, kCountAt, 300);
    WriteFile(appDir.File("bad.AP2"), b);
    EXPECT_EQ(RunSize("'" + appDir.File("bad.AP2") + "'"), 1);
    EXPECT_NE(err.find("File read failed."), std::string::npos);
}

TEST_F(SizeCliTest, BadUsageExitsWithTwo) {
    EXPECT_EQ(RunSize(""), 2);
    EXPECT_EQ(RunSize("a.AP2 b.AP2"), 2);
    EXPECT_EQ(RunSize("a.AP2 --xml"), 2);
}
