// A document whose file could not be read keeps that file's name; the first
// save over it keeps the old bytes beside it as NAME.bak and says so in
// History.log.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/HistoryLog.h"
#include "core/Tables.h"
#include "persist/mdlFile.h"
#include "tests/support/TestState.h"

namespace {

class UnreadFileTest : public StateTest {
protected:
    // Opens the bytes as the file doc.AP2 and saves the document over it.
    void OpenAndSaveOver(const std::string& bytes) {
        WriteFile(path, bytes);
        File_Load(path);
        ASSERT_EQ(FileName, path);
        ASSERT_TRUE(File_Save(FileName));
    }

    const std::string path = appDir.File("doc.AP2");
    const std::string backup = path + ".bak";
};

TEST_F(UnreadFileTest, ATruncatedFileIsKeptAsBakBeforeTheSaveReplacesIt) {
    Chain_Set({51, 1, 11, 31});
    const std::string cut = File_Bytes().substr(0, 20000);
    OpenAndSaveOver(cut);
    EXPECT_EQ(ReadFile(backup), cut);
    EXPECT_EQ(ReadFile(path), File_Bytes());
    const std::string log = ReadFile(History_Path());
    EXPECT_NE(log.find("could not be read"), std::string::npos) << log;
    EXPECT_NE(log.find(backup), std::string::npos) << log;
}

TEST_F(UnreadFileTest, ATextFileNamedAp2IsKeptAsBak) {
    const std::string text = "Shopping list\r\nmilk\r\n";
    OpenAndSaveOver(text);
    EXPECT_EQ(msg.Seen()[0].text, "File read failed.");
    EXPECT_EQ(ReadFile(backup), text);
}

TEST_F(UnreadFileTest, AFileWithoutAReaderIsKeptAsBak) {
    OpenAndSaveOver("Ver.x.0.0 and then some");
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(ReadFile(backup), "Ver.x.0.0 and then some");
}

TEST_F(UnreadFileTest, AFileReadWholeIsSavedOverWithoutABak) {
    Chain_Set({51, 1, 11, 31});
    OpenAndSaveOver(File_Bytes());
    EXPECT_FALSE(std::filesystem::exists(backup));
    EXPECT_FALSE(std::filesystem::exists(History_Path()));
}

TEST_F(UnreadFileTest, TheSecondSaveKeepsTheBakOfTheUnreadBytes) {
    OpenAndSaveOver("not a document");
    Chain_Set({51, 1, 11, 31});
    ASSERT_TRUE(File_Save(FileName));
    EXPECT_EQ(ReadFile(backup), "not a document");
    EXPECT_EQ(ReadFile(path), File_Bytes());
}

TEST_F(UnreadFileTest, SavingElsewhereLeavesTheUnreadFileAsItWas) {
    WriteFile(path, "not a document");
    File_Load(path);
    ASSERT_TRUE(File_Save(appDir.File("other.AP2")));
    EXPECT_EQ(ReadFile(path), "not a document");
    EXPECT_FALSE(std::filesystem::exists(backup));
    ASSERT_TRUE(File_Save(path));
    EXPECT_EQ(ReadFile(backup), "not a document");
}

TEST_F(UnreadFileTest, WhenTheBakCannotBeMadeTheSaveFailsAndTheFileStays) {
    WriteFile(path, "not a document");
    File_Load(path);
    std::filesystem::create_directory(backup);
    msg.Clear();
    EXPECT_FALSE(File_Save(path));
    EXPECT_EQ(msg.Seen()[0].text, "File write failed.");
    EXPECT_EQ(ReadFile(path), "not a document");
}

}  // namespace
