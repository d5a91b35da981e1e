// The print dialog without its window: opening on the document, the grid's editing rules, the block it stores on Print and Cancel, the status line and the print command.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "commands/ListPrintCommands.h"
#include "commands/PrintCommands.h"
#include "core/Tables.h"
#include "reports/CommentBox.h"
#include "tests/reports/PrintFixture.h"

namespace {

constexpr int kDelete = 46, kBackspace = 8, kNumLock = 144;

class PrintCommandsTest : public PrintTest {
protected:
    void WriteMtrUser(const std::string& bytes) { WriteFile(appDir.File("MtrUser.dat"), bytes); }

    // The stored administrator fields in the grid's row order 4 to 10.
    void StoreAdministrator() {
        PRINTINFO.Corporation = "Block corp";
        PRINTINFO.Unit1 = "Block unit 1";
        PRINTINFO.Unit2 = "Block unit 2";
        PRINTINFO.Name = "Block name";
        PRINTINFO.TelNo = "111";
        PRINTINFO.FaxNo = "222";
        PRINTINFO.Mail = "block@example.com";
    }

    std::vector<std::string> AdminRows(const PrintDialogState& s) const {
        return {s.info.begin() + 4, s.info.begin() + 11};
    }

    int attachmentsPrinted = 0;
    std::string attachmentPath;
    std::function<void(const std::string&)> Attach() {
        return [this](const std::string& path) {
            ++attachmentsPrinted;
            attachmentPath = path;
        };
    }
};

const std::string kMtrUser =
    "\"File name\"\r\n\"File corp\"\r\n\"File unit 1\"\r\n\"File unit 2\"\r\n\"333\"\r\n\"444\"\r\n\"file@example.com\"\r\n";

}  // namespace

TEST_F(PrintCommandsTest, AStoredBlockShowsItsAdministratorRows) {
    StoreAdministrator();
    PRINTINFO.PrintInfoSet = 1;
    WriteMtrUser(kMtrUser);
    const PrintDialogState s = Print_Open();
    EXPECT_EQ(AdminRows(s), (std::vector<std::string>{"Block corp", "Block unit 1", "Block unit 2", "Block name", "111",
                                                      "222", "block@example.com"}));
}

TEST_F(PrintCommandsTest, ANeverStoredBlockTakesTheAdministratorFromMtrUser) {
    StoreAdministrator();
    PRINTINFO.PrintInfoSet = 0;
    WriteMtrUser(kMtrUser);
    const PrintDialogState s = Print_Open();
    // Line 1 to row 7, lines 2, 3, 4 to rows 4, 5, 6, lines 5, 6, 7 to rows 8, 9, 10.
    EXPECT_EQ(AdminRows(s), (std::vector<std::string>{"File corp", "File unit 1", "File unit 2", "File name", "333", "444",
                                                      "file@example.com"}));
}

TEST_F(PrintCommandsTest, WithoutMtrUserOrWithAnEmptyOneTheAdministratorRowsAreEmpty) {
    StoreAdministrator();
    PRINTINFO.PrintInfoSet = 0;
    const std::vector<std::string> empty(7);
    EXPECT_EQ(AdminRows(Print_Open()), empty);
    WriteMtrUser("");
    EXPECT_EQ(AdminRows(Print_Open()), empty);
}

TEST_F(PrintCommandsTest, AMalformedMtrUserIsAnError) {
    PRINTINFO.PrintInfoSet = 0;
    WriteMtrUser("\"Only\"\r\n\"three\"\r\n\"lines\"\r\n");
    EXPECT_THROW(Print_Open(), RuntimeError);
    PRINTINFO.PrintInfoSet = 1;  // a stored block does not read the file
    EXPECT_NO_THROW(Print_Open());
}

TEST_F(PrintCommandsTest, OpeningShowsTheBlockTheSelectionAndTheBoxes) {
    PRINTINFO.cstCorporation = "Customer corp";
    PRINTINFO.cstUnit1 = "C1";
    PRINTINFO.cstUnit2 = "C2";
    PRINTINFO.cstName = "C name";
    PRINTINFO.System = "  System X  ";
    PRINTINFO.ConData = "Controller";
    PRINTINFO.InfoMotorModel = "Old motor";
    PRINTINFO.InfoDriverModel = "Old driver";
    MotorModelText = "New motor";
    DriverModelText = "New driver";
    for (int i = 0; i < 6; ++i) PRINTINFO.PrintLine[i] = " Line " + std::to_string(i + 1);
    PRINTINFO.PrintOption = {1, 0, 1, 0};
    PRINTINFO.Reserved = 1;
    const PrintDialogState s = Print_Open();
    EXPECT_EQ(s.info[0], "Customer corp");
    EXPECT_EQ(s.info[1], "C1");
    EXPECT_EQ(s.info[2], "C2");
    EXPECT_EQ(s.info[3], "C name");
    EXPECT_EQ(s.info[11], "System X");
    EXPECT_EQ(s.info[12], "New motor");
    EXPECT_EQ(s.info[13], "New driver");
    EXPECT_EQ(s.info[14], "Controller");
    for (int i = 0; i < 6; ++i) EXPECT_EQ(s.txtData[i], "Line " + std::to_string(i + 1));
    EXPECT_EQ(s.PrintCheck, (std::array<int16_t, 5>{1, 0, 1, 0, 1}));
    EXPECT_EQ(BoxWidth, 100);
    EXPECT_EQ(BoxLines, 5);
}

TEST_F(PrintCommandsTest, TheCommentOpensWrappedAtOneHundredCharacters) {
    const std::string plain = std::string(100, 'a') + std::string(50, 'b') + "\r\nend";
    PRINTINFO.PrintComment = plain;
    const PrintDialogState s = Print_Open();
    EXPECT_EQ(s.comment, std::string(100, 'a') + "\r\n" + std::string(50, 'b') + "\r\nend");
}

TEST_F(PrintCommandsTest, OnlyColumnTwoIsEditedAndNotTheSelectionRows) {
    for (int row = 0; row < kInfoRows; ++row) {
        EXPECT_FALSE(Print_CellEditable(row, 0)) << row;
        EXPECT_FALSE(Print_CellEditable(row, 1)) << row;
        EXPECT_EQ(Print_CellEditable(row, 2), row != 12 && row != 13) << row;
    }
}

TEST_F(PrintCommandsTest, AdministratorNamesStopAfterThirtyCharactersTelephoneAndFaxAtEighteen) {
    for (int row = 4; row <= 7; ++row) {
        EXPECT_TRUE(Print_CellKeyAllowed(row, 0, 'a'));
        EXPECT_TRUE(Print_CellKeyAllowed(row, 29, 'a')) << row;
        EXPECT_FALSE(Print_CellKeyAllowed(row, 30, 'a')) << row;
        EXPECT_FALSE(Print_CellKeyAllowed(row, 45, ' ')) << row;
        for (const int key : {kDelete, kBackspace, kNumLock}) EXPECT_TRUE(Print_CellKeyAllowed(row, 30, key)) << key;
    }
    for (int row = 8; row <= 9; ++row) {
        EXPECT_TRUE(Print_CellKeyAllowed(row, 17, '5')) << row;
        EXPECT_FALSE(Print_CellKeyAllowed(row, 18, '5')) << row;
        for (const int key : {kDelete, kBackspace, kNumLock}) EXPECT_TRUE(Print_CellKeyAllowed(row, 18, key)) << key;
    }
    for (const int row : {0, 1, 2, 3, 10, 11, 14}) EXPECT_TRUE(Print_CellKeyAllowed(row, 200, 'x')) << row;
}

TEST_F(PrintCommandsTest, EnterMovesToTheNextRowAndStaysInTheLast) {
    for (int row = 0; row < 14; ++row) EXPECT_EQ(Print_EnterRow(row), row + 1);
    EXPECT_EQ(Print_EnterRow(12), 13);
    EXPECT_EQ(Print_EnterRow(13), 14);
    EXPECT_EQ(Print_EnterRow(14), 14);
}

TEST_F(PrintCommandsTest, CancelKeepsTheEditsInTheBlock) {
    ASSERT_TRUE(LoadExample());
    PRINTINFO.PrintInfoSet = 0;
    PRINTINFO.PrintComment = "";
    PrintDialogState s = Print_Open();
    for (int row = 0; row < kInfoRows; ++row) s.info[row] = "Row " + std::to_string(row);
    s.info[7] = std::string(45, 'n');  // longer than the field of 40
    s.txtData = {"HL", "HM", "HR", "FL", "FM", "FR"};
    // The comment is typed: 150 characters then a line end and a word.
    int shift = 0;
    s.comment = Box_Change(std::string(150, 'c') + "\r\nword", shift);
    ASSERT_EQ(s.comment, std::string(100, 'c') + "\r\n" + std::string(50, 'c') + "\r\nword");
    s.PrintCheck = {0, 1, 1, 0, 1};
    s.txtTemp = appDir.File("attached.txt");
    Print_Unload(s);

    EXPECT_EQ(PRINTINFO.PrintInfoSet, 1);
    EXPECT_EQ(PRINTINFO.cstCorporation.Str(), "Row 0");
    EXPECT_EQ(PRINTINFO.cstName.Str(), "Row 3");
    EXPECT_EQ(PRINTINFO.Corporation.Str(), "Row 4");
    EXPECT_EQ(std::string(PRINTINFO.Name.Raw()), std::string(40, 'n'));
    EXPECT_EQ(PRINTINFO.TelNo.Str(), "Row 8");
    EXPECT_EQ(PRINTINFO.Mail.Str(), "Row 10");
    EXPECT_EQ(PRINTINFO.System.Str(), "Row 11");
    EXPECT_EQ(PRINTINFO.InfoMotorModel.Str(), "Row 12");
    EXPECT_EQ(PRINTINFO.InfoDriverModel.Str(), "Row 13");
    EXPECT_EQ(PRINTINFO.ConData.Str(), "Row 14");
    EXPECT_EQ(std::string(PRINTINFO.cstUnit1.Raw()), "Row 1" + std::string(35, ' '));  // left-aligned in its width
    for (int i = 0; i < 6; ++i) EXPECT_EQ(PRINTINFO.PrintLine[i].Str(), s.txtData[i]);
    EXPECT_EQ(PRINTINFO.PrintComment.Str(), std::string(150, 'c') + "\r\nword");  // without the automatic line end
    EXPECT_EQ(PRINTINFO.PrintOption, (std::array<int16_t, 4>{0, 1, 1, 0}));
    EXPECT_EQ(PRINTINFO.Reserved, 0);  // the attachment is not kept

    // Opened again, the dialog shows what was stored.
    const PrintDialogState again = Print_Open();
    EXPECT_EQ(again.info[4], "Row 4");
    EXPECT_EQ(again.comment, s.comment);
    EXPECT_EQ(again.PrintCheck, (std::array<int16_t, 5>{0, 1, 1, 0, 0}));
}

TEST_F(PrintCommandsTest, TheStoredCommentHasNoSoftLineEndsAndIsCutAt1024) {
    PrintDialogState s = Print_Open();
    std::string plain;
    for (int i = 0; i < 1500; ++i) plain += static_cast<char>('a' + i % 26);
    Box_Wrap(plain);
    PRINTINFO_Set(s);
    const std::string stored(PRINTINFO.PrintComment.Raw());
    EXPECT_EQ(stored.size(), 1024u);
    EXPECT_EQ(stored, plain.substr(0, 1024));
    EXPECT_EQ(stored.find('\r'), std::string::npos);
}

TEST_F(PrintCommandsTest, TheRequestCarriesTheDialogsState) {
    PrintDialogState s;
    s.txtData = {"a", "b", "c", "d", "e", "f"};
    s.comment = "shown\r\ncomment";
    s.PrintCheck = {1, 1, 0, 1, 1};
    s.txtTemp = "/tmp/attachment.txt";
    const PrintRequest r = Print_Request(s, "Office", "Nov.14,2026");
    EXPECT_EQ(r.printer, "Office");
    EXPECT_EQ(r.txtData, s.txtData);
    EXPECT_EQ(r.comment, s.comment);
    EXPECT_EQ(r.PrintCheck, s.PrintCheck);
    EXPECT_EQ(r.attachment, s.txtTemp);
    EXPECT_EQ(r.date, "Nov.14,2026");
}

TEST_F(PrintCommandsTest, StatusLineOfTheDefaultPrinterAndAnother) {
    EXPECT_EQ(Print_StatusLine("Office", "Office", 0), "Default Printer:Online\x81]Document in queue:0");
    EXPECT_EQ(Print_StatusLine("Lab", "Office", 0), "Lab:Online\x81]Document in queue:0");
    EXPECT_EQ(Print_StatusLine("Office", "Office", 1), "Default Printer:Online\x81]Document in queue:1");
    EXPECT_EQ(Print_StatusLine("Lab", "Office", 42), "Lab:Online\x81]Document in queue:42");
    EXPECT_EQ(Print_StatusLine("Office", "Office", 99), "Default Printer:Online\x81]Document in queue:99");
}

TEST_F(PrintCommandsTest, StatusLineWhenTheQueueCannotBeRead) {
    EXPECT_EQ(Print_StatusLine("Office", "Office", -1),
              "Default Printer:Attention required:Cannot access document to be printed.");
    EXPECT_EQ(Print_StatusLine("Lab", "Office", 100), "Lab:Attention required:Cannot access document to be printed.");
}

TEST_F(PrintCommandsTest, StatusLineIsEmptyWithoutADefaultPrinter) {
    EXPECT_EQ(Print_StatusLine("Lab", "", 0), "");
    EXPECT_EQ(Print_StatusLine("Lab", "", 3), "");
}

TEST_F(PrintCommandsTest, WithNothingCheckedPrintOnlyStoresTheBlockAndAsks) {
    PrintDialogState s = Print_Open();
    s.info[0] = "Stored customer";
    s.txtData[0] = "Stored head";
    s.PrintCheck = {0, 0, 0, 0, 0};
    msg.Answer(MsgAnswer::Yes);
    EXPECT_TRUE(Print_Command(s, wr, Print_Request(s, "Office", "Nov.14,2026"), Attach()));
    EXPECT_TRUE(wr.Calls().empty());
    EXPECT_EQ(attachmentsPrinted, 0);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "OK to exit printing?");
    EXPECT_EQ(msg.Seen()[0].title, "Print");
    EXPECT_EQ(msg.Seen()[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(PRINTINFO.cstCorporation.Str(), "Stored customer");
    EXPECT_EQ(PRINTINFO.PrintLine[0].Str(), "Stored head");
}

TEST_F(PrintCommandsTest, AnswerNoLeavesTheDialogOpen) {
    const PrintDialogState s = Print_Open();
    msg.Answer(MsgAnswer::No);
    EXPECT_FALSE(Print_Command(s, wr, Print_Request(s, "Office", "Nov.14,2026"), Attach()));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "OK to exit printing?");
}

TEST_F(PrintCommandsTest, AMissingAttachmentIsToldAndNotPrinted) {
    PrintDialogState s = Print_Open();
    s.PrintCheck[kPrintAttachment] = 1;
    s.txtTemp = appDir.File("missing.doc");
    msg.Answer(MsgAnswer::OK);
    msg.Answer(MsgAnswer::Yes);
    EXPECT_TRUE(Print_Command(s, wr, Print_Request(s, "Office", "Nov.14,2026"), Attach()));
    EXPECT_EQ(attachmentsPrinted, 0);
    ASSERT_EQ(msg.Seen().size(), 2u);
    EXPECT_EQ(msg.Seen()[0].text, "Specified file does not exist.");
    EXPECT_EQ(msg.Seen()[0].title, "Attachment");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(msg.Seen()[1].text, "OK to exit printing?");
}

TEST_F(PrintCommandsTest, AnExistingAttachmentPrintsAfterTheParts) {
    ASSERT_TRUE(LoadExample());
    PrintDialogState s = Print_Open();
    s.PrintCheck = {0, 0, 1, 0, 1};
    s.txtTemp = appDir.File("attached.txt");
    WriteFile(s.txtTemp, "notes\r\n");
    EXPECT_FALSE(Print_Command(s, wr, Print_Request(s, "Office", "Nov.14,2026"), [&](const std::string& path) {
        attachmentPath = path;
        ++attachmentsPrinted;
        EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 1u);  // the precautions came first
    }));
    EXPECT_EQ(attachmentsPrinted, 1);
    EXPECT_EQ(attachmentPath, s.txtTemp);
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "OK to exit printing?");
}

TEST_F(PrintCommandsTest, PrintSendsTheCheckedPartsOnThePrinter) {
    ASSERT_TRUE(LoadExample());
    PrintDialogState s = Print_Open();
    s.PrintCheck = {1, 1, 1, 1, 0};
    msg.Answer(MsgAnswer::Yes);
    EXPECT_TRUE(Print_Command(s, wr, Print_Request(s, "Office", "Nov.14,2026"), Attach()));
    EXPECT_EQ(CallsOf(wr.Calls(), "wrPrint").size(), 4u);
    for (const ReportCall& c : CallsOf(wr.Calls(), "wrSetPrinterDevice")) EXPECT_EQ(c.value, "Office");
    EXPECT_EQ(PRINTINFO.PrintOption, (std::array<int16_t, 4>{1, 1, 1, 1}));
}

TEST_F(PrintCommandsTest, WithoutAPrinterPrintDoesNothing) {
    PrintDialogState s = Print_Open();
    s.info[0] = "Not stored";
    s.PrintCheck = {1, 1, 1, 1, 0};
    EXPECT_FALSE(Print_Command(s, wr, Print_Request(s, "", "Nov.14,2026"), Attach()));
    EXPECT_TRUE(wr.Calls().empty());
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(PRINTINFO.cstCorporation.Str(), "");
}

TEST_F(PrintCommandsTest, TheGridHasItsFifteenCaptions) {
    EXPECT_STREQ(kInfoRowCaptions[0].group, "Customer");
    EXPECT_STREQ(kInfoRowCaptions[0].label, "Company Name");
    EXPECT_STREQ(kInfoRowCaptions[3].label, "Name");
    EXPECT_STREQ(kInfoRowCaptions[4].group, "Administrator");
    EXPECT_STREQ(kInfoRowCaptions[8].label, "Tel");
    EXPECT_STREQ(kInfoRowCaptions[9].label, "Fax");
    EXPECT_STREQ(kInfoRowCaptions[10].label, "E-mail");
    EXPECT_STREQ(kInfoRowCaptions[11].group, "Servo System");
    EXPECT_STREQ(kInfoRowCaptions[11].label, "System name");
    EXPECT_STREQ(kInfoRowCaptions[12].label, "Motor model number");
    EXPECT_STREQ(kInfoRowCaptions[13].label, "Driver model number");
    EXPECT_STREQ(kInfoRowCaptions[14].label, "Controller model number");
}

TEST_F(PrintCommandsTest, ExportWithNothingCheckedSaysSoAndWritesNothing) {
    PrintRequest request = Request(false, false, false, false);
    request.PrintCheck[kPrintAttachment] = 1;  // the attachment is no part of the file
    EXPECT_FALSE(Print_Export(request, appDir.File("out.pdf")));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "There is nothing to export: check an item to print.");
    EXPECT_EQ(msg.Seen()[0].title, "Export PDF");
    EXPECT_EQ(ReadFile(appDir.File("out.pdf")), "");
}

TEST_F(PrintCommandsTest, ExportWritesTheCheckedPartsIntoAPdf) {
    ASSERT_TRUE(LoadExample());
    EXPECT_TRUE(Print_Export(Request(true, false, false, true), appDir.File("out.pdf")));
    EXPECT_TRUE(msg.Seen().empty());
    const std::string pdf = ReadFile(appDir.File("out.pdf"));
    EXPECT_EQ(pdf.rfind("%PDF-", 0), 0u);
    EXPECT_NE(pdf.find("/Count 2"), std::string::npos);
}

TEST_F(PrintCommandsTest, ExportIntoAFolderThatIsNotThereSaysSo) {
    ASSERT_TRUE(LoadExample());
    EXPECT_FALSE(Print_Export(Request(true, false, false), appDir.File("none/out.pdf")));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "The PDF file could not be written.");
    EXPECT_EQ(msg.Seen()[0].title, "Export PDF");
}

TEST_F(PrintCommandsTest, ListExportWritesOnePagePerTwentyMotorsAndTheEmptyPage) {
    ListSheet sheet{"S", "G", {}, {}};
    sheet.motors.resize(20, {"OK", "M", "100", "3000", "1E-5", "0.3", "0.9", "30", "0.5", "0"});
    EXPECT_TRUE(ListPrint_Export(sheet, appDir.File("list.pdf"), "Nov.14,2026"));
    EXPECT_TRUE(msg.Seen().empty());
    const std::string pdf = ReadFile(appDir.File("list.pdf"));
    EXPECT_EQ(pdf.rfind("%PDF-", 0), 0u);
    EXPECT_NE(pdf.find("/Count 2"), std::string::npos);
}

TEST_F(PrintCommandsTest, ListExportIntoAFolderThatIsNotThereSaysSo) {
    EXPECT_FALSE(ListPrint_Export(ListSheet{}, appDir.File("none/list.pdf"), "Nov.14,2026"));
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "The PDF file could not be written.");
    EXPECT_EQ(msg.Seen()[0].title, "Export PDF");
}
