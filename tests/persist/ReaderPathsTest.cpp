// Every reader of outside bytes given a path that is no plain file: a
// folder, a FIFO, an endless device, a file whose read fails, a file cut
// short and one far larger than its format. Each answers as for a file it
// could not read, at once, and the program goes on.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "core/UnitFile.h"
#include "persist/AppFileLayout.h"
#include "persist/MtrUser.h"
#include "persist/mdlFile.h"
#include "reports/ParamIni.h"
#include "selection/mdlDataBase.h"
#include "tests/support/HostilePaths.h"
#include "tests/support/TestState.h"
#include "units/UnitTable.h"

namespace {

using MakePath = std::string (*)(const std::string&);

const std::pair<const char*, MakePath> kUnreadable[] = {
    {"folder", Path_Folder},
    {"FIFO", Path_Fifo},
    {"endless device", Path_EndlessDevice},
    {"failing read", Path_ReadFails},
};

class ReaderPathsTest : public StateTest {
protected:
    // A fresh place for the file of the given name: the folder is emptied.
    std::string Fresh(const std::string& name) {
        const std::string path = appDir.File(name);
        std::filesystem::remove_all(path);
        return path;
    }

    void ExpectReadFailed(const std::string& path, const char* kind) {
        SCOPED_TRACE(kind);
        msg.Clear();
        EXPECT_FALSE(File_Load(path));
        ASSERT_FALSE(msg.Seen().empty());
        EXPECT_EQ(msg.Seen()[0].text, "File read failed.");
        EXPECT_EQ(msg.Seen()[0].title, "Open");
        EXPECT_EQ(ElementCount, 1);  // the new document
        EXPECT_EQ(FileName, path);
        EXPECT_EQ(UnreadFile, path);
    }
};

TEST_F(ReaderPathsTest, OpeningAPathThatIsNoFileSaysFileReadFailed) {
    for (const auto& [kind, make] : kUnreadable) ExpectReadFailed(make(Fresh("doc.AP2")), kind);
}

TEST_F(ReaderPathsTest, OpeningAFileCutShortSaysFileReadFailed) {
    Chain_Set({51, 1, 11, 31});
    const std::string whole = File_Bytes();
    WriteFile(appDir.File("cut.AP2"), whole.substr(0, whole.size() / 2));
    ExpectReadFailed(appDir.File("cut.AP2"), "cut short");
}

TEST_F(ReaderPathsTest, AHugeFileOpensAsTheDocumentAtItsHead) {
    Chain_Set({51, 1, 11, 31});
    const std::string path = Path_Huge(appDir.File("big.AP2"), File_Bytes());
    State_Reset();
    EXPECT_TRUE(File_Load(path));
    EXPECT_EQ(ElementCount, 4);
    EXPECT_EQ(Element[3].ElementType, 31);
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(UnreadFile, "");
}

TEST_F(ReaderPathsTest, AUnitFileThatIsNoFileGivesTheDefaultUnits) {
    for (const auto& [kind, make] : kUnreadable) {
        SCOPED_TRACE(kind);
        make(Fresh("UnitInfo.dat"));
        UnitTable[5].Sel = 1;
        EXPECT_NO_THROW(Unit_Load());
        EXPECT_EQ(UnitTable[5].Sel, kUnitFreshSel[5]);
    }
}

TEST_F(ReaderPathsTest, AUnitFileCutShortIsRefused) {
    WriteFile(appDir.File("UnitInfo.dat"), "0\r\n1\r\n");
    EXPECT_THROW(Unit_Load(), RuntimeError);
}

TEST_F(ReaderPathsTest, AHugeUnitFileIsReadAtItsHead) {
    Path_Huge(appDir.File("UnitInfo.dat"), "0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
    Unit_Load();
    EXPECT_EQ(UnitTable[5].Sel, 1);
}

TEST_F(ReaderPathsTest, SavingTheUnitsOverAFifoFailsInsteadOfWaiting) {
    Path_Fifo(appDir.File("UnitInfo.dat"));
    EXPECT_THROW(Unit_Save(), RuntimeError);
}

TEST_F(ReaderPathsTest, AnAdministratorFileThatIsNoFileCountsAsMissing) {
    for (const auto& [kind, make] : kUnreadable) {
        SCOPED_TRACE(kind);
        make(Fresh("MtrUser.dat"));
        AdminTexts texts;
        EXPECT_FALSE(MtrUser_ReadFile(texts));
    }
}

TEST_F(ReaderPathsTest, AnAdministratorFileCutShortIsRefused) {
    WriteFile(MtrUser_Path(), "\"a\"\r\n\"b\"\r\n");
    AdminTexts texts;
    EXPECT_THROW(MtrUser_ReadFile(texts), RuntimeError);
}

TEST_F(ReaderPathsTest, AHugeAdministratorFileIsReadAtItsHead) {
    Path_Huge(MtrUser_Path(), "\"Name\"\r\n\"C\"\r\n\"U1\"\r\n\"U2\"\r\n\"T\"\r\n\"F\"\r\n\"M\"\r\n");
    AdminTexts texts;
    EXPECT_TRUE(MtrUser_ReadFile(texts));
    EXPECT_EQ(texts[0], "Name");
    EXPECT_EQ(texts[6], "M");
}

TEST_F(ReaderPathsTest, ASettingFileThatIsNoFileHasNoEntries) {
    for (const auto& [kind, make] : kUnreadable) {
        SCOPED_TRACE(kind);
        EXPECT_EQ(ParamIni_String(make(Fresh("Param.ini")), "1", "Name"), "");
    }
}

TEST_F(ReaderPathsTest, ASettingFileCutShortKeepsTheEntriesBeforeTheCut) {
    WriteFile(ParamIni_Path(), "[1]\r\nA=one\r\nB=tw");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "1", "A"), "one");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "1", "B"), "tw");
}

TEST_F(ReaderPathsTest, AHugeSettingFileIsReadAtItsHead) {
    Path_Huge(ParamIni_Path(), "[1]\r\nA=one\r\n");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "1", "A"), "one");
}

TEST_F(ReaderPathsTest, ASettingFileWithANulByteReadsTheLinesAfterIt) {
    WriteFile(ParamIni_Path(), std::string("[1]\r\nA=o\0ne\r\nB=two\r\n", 20));
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "1", "A"), "o");
    EXPECT_EQ(ParamIni_String(ParamIni_Path(), "1", "B"), "two");
}

TEST_F(ReaderPathsTest, ACatalogueThatIsNoFileLeavesTheConnectionClosed) {
    for (const auto& [kind, make] : kUnreadable) {
        SCOPED_TRACE(kind);
        make(Fresh("Series.db"));
        msg.Clear();
        Series_Connect();
        EXPECT_FALSE(SeriesConnection.IsOpen());
    }
}

TEST_F(ReaderPathsTest, ACatalogueCutShortLeavesTheConnectionClosedWithoutAMessage) {
    WriteFile(appDir.File("Series.db"), "SQLite format 3");
    Series_Connect();
    EXPECT_FALSE(SeriesConnection.IsOpen());
    EXPECT_TRUE(msg.Seen().empty());
}

}  // namespace
