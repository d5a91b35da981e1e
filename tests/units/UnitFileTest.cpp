// UnitInfo.dat: reading, writing, and start-up with a damaged file.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "core/UnitFile.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

const std::array<int16_t, 11> kFresh = {1, 0, 0, 1, 0, 0, 1, 1, 1, 1, 1};

class UnitFileTest : public StateTest {
protected:
    std::string Path() const { return appDir.File("UnitInfo.dat"); }
    std::array<int16_t, 11> Picks() const {
        std::array<int16_t, 11> p{};
        for (int k = 0; k < 11; ++k) p[k] = UnitTable[k].Sel;
        return p;
    }
    void SetPicks(const std::array<int16_t, 11>& p) {
        for (int k = 0; k < 11; ++k) UnitTable[k].Sel = p[k];
    }
    const std::array<int16_t, 11> other_ = {0, 1, 2, 2, 3, 1, 2, 0, 5, 3, 4};
    const std::string otherFile_ = "0\r\n1\r\n2\r\n2\r\n3\r\n1\r\n2\r\n0\r\n5\r\n3\r\n4\r\n";
};

TEST_F(UnitFileTest, PathIsInTheProgramFolder) { EXPECT_EQ(UnitFile_Path(), Path()); }

TEST_F(UnitFileTest, MissingFileGivesTheFreshPicksAndLeavesAnEmptyFile) {
    SetPicks(other_);
    ASSERT_FALSE(std::filesystem::exists(Path()));
    Unit_Load();
    EXPECT_EQ(Picks(), kFresh);
    EXPECT_EQ(UnitTable[6].Sel, 1);  // rad/s
    EXPECT_TRUE(std::filesystem::exists(Path()));
    EXPECT_EQ(std::filesystem::file_size(Path()), 0u);
}

TEST_F(UnitFileTest, EmptyFileGivesTheFreshPicks) {
    SetPicks(other_);
    WriteFile(Path(), "");
    Unit_Load();
    EXPECT_EQ(Picks(), kFresh);
    EXPECT_EQ(UnitTable[6].Sel, 1);
}

TEST_F(UnitFileTest, ValidFileSetsEveryPick) {
    WriteFile(Path(), otherFile_);
    Unit_Load();
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, LineFeedOnlyLinesAreRead) {
    WriteFile(Path(), "0\n1\n2\n2\n3\n1\n2\n0\n5\n3\n4\n");
    Unit_Load();
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, LastLineWithoutLineEndIsRead) {
    WriteFile(Path(), "0\r\n1\r\n2\r\n2\r\n3\r\n1\r\n2\r\n0\r\n5\r\n3\r\n4");
    Unit_Load();
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, LinesAfterTheEleventhAreIgnored) {
    WriteFile(Path(), otherFile_ + "7\r\nrest\r\n");
    Unit_Load();
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, ExistingFileTakesThePlaceOfTheDefaultsEvenWhenAllZero) {
    WriteFile(Path(), "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
    Unit_Load();
    for (int k = 0; k < 11; ++k) EXPECT_EQ(UnitTable[k].Sel, 0) << k;
}

TEST_F(UnitFileTest, ShortFileFailsAndKeepsThePicks) {
    SetPicks(other_);
    WriteFile(Path(), "1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n");  // ten lines
    EXPECT_THROW(Unit_Load(), RuntimeError);
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, GarbledLineFails) {
    SetPicks(other_);
    WriteFile(Path(), "1\r\n0\r\nmm\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n1\r\n");
    EXPECT_THROW(Unit_Load(), RuntimeError);
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, BinaryGarbageFails) {
    WriteFile(Path(), std::string("\x00\xff\xfe garbage\x01", 12));
    EXPECT_THROW(Unit_Load(), RuntimeError);
}

TEST_F(UnitFileTest, PickTheCategoryDoesNotHaveFails) {
    SetPicks(other_);
    WriteFile(Path(), "1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n1\r\n2\r\n1\r\n1\r\n1\r\n");  // mass has g and kg only
    EXPECT_THROW(Unit_Load(), RuntimeError);
    EXPECT_EQ(Picks(), other_);
    WriteFile(Path(), "-1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n1\r\n");
    EXPECT_THROW(Unit_Load(), RuntimeError);
    WriteFile(Path(), "99999\r\n0\r\n0\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n1\r\n");
    EXPECT_THROW(Unit_Load(), RuntimeError);
}

TEST_F(UnitFileTest, NamesAreSetEvenWhenTheFileFails) {
    for (auto& c : UnitTable) c.Names = {};
    WriteFile(Path(), "x\r\n");
    EXPECT_THROW(Unit_Load(), RuntimeError);
    EXPECT_EQ(UnitTable[7].Names[1], "kg");
    EXPECT_EQ(UnitTable[0].Names[2], "min");
}

TEST_F(UnitFileTest, SaveWritesElevenLinesWithCarriageReturnAndLineFeed) {
    SetPicks(other_);
    Unit_Save();
    EXPECT_EQ(ReadFile(Path()), otherFile_);
}

TEST_F(UnitFileTest, SaveReplacesALongerFile) {
    WriteFile(Path(), std::string(500, 'x'));
    SetPicks(kFresh);
    Unit_Save();
    EXPECT_EQ(ReadFile(Path()), "1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n1\r\n");
}

TEST_F(UnitFileTest, DefaultsButtonThenSaveKeepsRotationalSpeedInRevolutions) {
    SetPicks(other_);
    for (int k = 0; k < 11; ++k) UnitTable[k].Sel = kUnitDefaultSel[k];
    Unit_Save();
    EXPECT_EQ(ReadFile(Path()), "1\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n1\r\n1\r\n1\r\n1\r\n");
    SetPicks(other_);
    Unit_Load();
    EXPECT_EQ(UnitTable[6].Sel, 0);
}

TEST_F(UnitFileTest, SaveThenLoadRoundTrips) {
    SetPicks(other_);
    Unit_Save();
    SetPicks(kFresh);
    Unit_Load();
    EXPECT_EQ(Picks(), other_);
}

TEST_F(UnitFileTest, SaveIntoAMissingFolderFails) {
    AppPath = appDir.File("no/such/folder");
    EXPECT_THROW(Unit_Save(), RuntimeError);
}

TEST_F(UnitFileTest, StartUpWithAGarbledFileTellsOnceAndUsesTheDefaults) {
    SetPicks(other_);
    WriteFile(Path(), "1\r\n0\r\nmm\r\n");
    EXPECT_NO_THROW(Unit_LoadOrDefaults());
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_NE(msg.Seen()[0].text.find(Path()), std::string::npos);
    EXPECT_NE(msg.Seen()[0].text.find("UnitInfo.dat"), std::string::npos);
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::OK);
    EXPECT_EQ(Picks(), kFresh);
    EXPECT_EQ(UnitTable[8].Names[1], "kg\xB7m\xB2(GD2/4)");
}

TEST_F(UnitFileTest, StartUpWithAShortFileTellsOnceAndUsesTheDefaults) {
    SetPicks(other_);
    WriteFile(Path(), "0\r\n1\r\n");
    Unit_LoadOrDefaults();
    EXPECT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(Picks(), kFresh);
}

TEST_F(UnitFileTest, StartUpWithAMissingOrValidFileSaysNothing) {
    Unit_LoadOrDefaults();
    EXPECT_EQ(Picks(), kFresh);
    WriteFile(Path(), otherFile_);
    Unit_LoadOrDefaults();
    EXPECT_EQ(Picks(), other_);
    EXPECT_TRUE(msg.Seen().empty());
}

}  // namespace
