// The administrator lines (persist/MtrUser): MtrUser.dat read, cleaned and written, and the document's fallback.
#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "persist/MtrUser.h"
#include "tests/support/TestState.h"

class MtrUserTest : public StateTest {
protected:
    void FillDocumentBlock() {
        PRINTINFO.Name = "  Doc Name";
        PRINTINFO.Corporation = "Doc Corp";
        PRINTINFO.Unit1 = "Doc Unit1";
        PRINTINFO.Unit2 = "Doc Unit2";
        PRINTINFO.TelNo = "111";
        PRINTINFO.FaxNo = "222";
        PRINTINFO.Mail = "doc@example.com";
    }
    const AdminTexts entered = {"A. Admin", "Torvane Drives", "Sizing", "Desk 2", "+1 555 0100", "+1 555 0101",
                                "admin@example.com"};
};

TEST_F(MtrUserTest, WithoutTheFileTheDialogShowsWhatTheDocumentHolds) {
    FillDocumentBlock();
    const AdminTexts expected = {"Doc Name", "Doc Corp", "Doc Unit1", "Doc Unit2", "111", "222", "doc@example.com"};
    EXPECT_EQ(MtrUser_Read(), expected);
}

TEST_F(MtrUserTest, WithAnEmptyFileTheDialogShowsEmptyBoxes) {
    FillDocumentBlock();
    WriteFile(MtrUser_Path(), "");
    EXPECT_EQ(MtrUser_Read(), AdminTexts{});
}

TEST_F(MtrUserTest, LinesLoseTheirQuotesAndAreCleaned) {
    WriteFile(MtrUser_Path(), "\"Name\"\r\n\" Corp \"\r\n\"U1\"\r\n\"\"\r\n\"Tel\"\r\n\"Fax\"\r\n\"m@x\"\r\n");
    const AdminTexts expected = {"Name", "Corp", "U1", "", "Tel", "Fax", "m@x"};
    EXPECT_EQ(MtrUser_Read(), expected);
}

TEST_F(MtrUserTest, FirstAndLastCharacterGoWhateverTheyAre) {
    using namespace std::string_literals;
    WriteFile(MtrUser_Path(), "xNamey\r\n\"a\0b\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"s);
    const AdminTexts texts = MtrUser_Read();
    EXPECT_EQ(texts[0], "Name");
    EXPECT_EQ(texts[1], "a");  // cut at the character of code 0
}

TEST_F(MtrUserTest, LineShorterThanTwoCharactersIsARunTimeError) {
    WriteFile(MtrUser_Path(), "\"Name\"\r\n\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
    EXPECT_THROW(MtrUser_Read(), RuntimeError);
}

TEST_F(MtrUserTest, FewerThanSevenLinesIsARunTimeError) {
    WriteFile(MtrUser_Path(), "\"Name\"\r\n\"Corp\"\r\n");
    EXPECT_THROW(MtrUser_Read(), RuntimeError);
}

TEST_F(MtrUserTest, WritingGivesSevenQuotedLinesEndingInCrLf) {
    MtrUser_Write(entered);
    EXPECT_EQ(ReadFile(MtrUser_Path()),
              "\"A. Admin\"\r\n\"Torvane Drives\"\r\n\"Sizing\"\r\n\"Desk 2\"\r\n\"+1 555 0100\"\r\n"
              "\"+1 555 0101\"\r\n\"admin@example.com\"\r\n");
    EXPECT_EQ(MtrUser_Read(), entered);
}

TEST_F(MtrUserTest, DocumentWithoutAFileTakesTheTexts) {
    DocumentNamed = 0;
    MtrUser_Write(entered);
    EXPECT_EQ(PRINTINFO.Name.Str(), "A. Admin");
    EXPECT_EQ(PRINTINFO.Corporation.Str(), "Torvane Drives");
    EXPECT_EQ(PRINTINFO.Unit1.Str(), "Sizing");
    EXPECT_EQ(PRINTINFO.Unit2.Str(), "Desk 2");
    EXPECT_EQ(PRINTINFO.TelNo.Str(), "+1 555 0100");
    EXPECT_EQ(PRINTINFO.FaxNo.Str(), "+1 555 0101");
    EXPECT_EQ(PRINTINFO.Mail.Str(), "admin@example.com");
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(MtrUserTest, DocumentWithAFileKeepsItsBlock) {
    FillDocumentBlock();
    DocumentNamed = 1;
    MtrUser_Write(entered);
    EXPECT_EQ(PRINTINFO.Name.Str(), "  Doc Name");
    EXPECT_EQ(PRINTINFO.Mail.Str(), "doc@example.com");
    EXPECT_EQ(DirtyFlag, 1);
}

TEST_F(MtrUserTest, FailedWriteThrowsAndChangesNothing) {
    AppPath = appDir.File("no such folder");
    EXPECT_THROW(MtrUser_Write(entered), RuntimeError);
    EXPECT_EQ(PRINTINFO.Name.Str(), "");
    EXPECT_EQ(DirtyFlag, 0);
}

