// Opens with its header: commands/PrintCommands.h.
#include "commands/PrintCommands.h"

#include "base/MsgBox.h"
#include "base/ReadFile.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "persist/MtrUser.h"
#include "reports/CommentBox.h"
#include "reports/PdfExport.h"
#include "reports/PrintRoutines.h"

const std::array<InfoRowCaption, kInfoRows> kInfoRowCaptions = {{
    {"Customer", "Company Name"},
    {"Customer", "Department 1"},
    {"Customer", "Department 2"},
    {"Customer", "Name"},
    {"Administrator", "Company Name"},
    {"Administrator", "Department 1"},
    {"Administrator", "Department 2"},
    {"Administrator", "Name"},
    {"Administrator", "Tel"},
    {"Administrator", "Fax"},
    {"Administrator", "E-mail"},
    {"Servo System", "System name"},
    {"Servo System", "Motor model number"},
    {"Servo System", "Driver model number"},
    {"Servo System", "Controller model number"},
}};

namespace {

constexpr int kCommentWidth = 100, kCommentLines = 5;

// Sets the field of a grid row, or reads it (the motor and driver rows store
// into the information block's copies of the models).
template <typename Visit>
void Info_Fields(Visit visit) {
    PrintInfoRecord& p = PRINTINFO;
    visit(0, p.cstCorporation);
    visit(1, p.cstUnit1);
    visit(2, p.cstUnit2);
    visit(3, p.cstName);
    visit(4, p.Corporation);
    visit(5, p.Unit1);
    visit(6, p.Unit2);
    visit(7, p.Name);
    visit(8, p.TelNo);
    visit(9, p.FaxNo);
    visit(10, p.Mail);
    visit(11, p.System);
    visit(12, p.InfoMotorModel);
    visit(13, p.InfoDriverModel);
    visit(14, p.ConData);
}

constexpr int kAdminFirst = 4, kAdminLast = 10;

}  // namespace

PrintDialogState Print_Open() {
    PrintDialogState state;
    Info_Fields([&](int row, const auto& field) {
        const bool admin = row >= kAdminFirst && row <= kAdminLast;
        if (!admin || PRINTINFO.PrintInfoSet == 1) state.info[row] = Text_Clean(field.Raw());
    });
    AdminTexts admin{};
    if (PRINTINFO.PrintInfoSet != 1 && MtrUser_ReadFile(admin)) {
        // File order: Name, Corporation, Unit1, Unit2, TelNo, FaxNo, Mail.
        static constexpr std::array<int, kAdminLines> kRowOfLine = {7, 4, 5, 6, 8, 9, 10};
        for (int line = 0; line < kAdminLines; ++line) state.info[kRowOfLine[line]] = admin[line];
    }
    state.info[kInfoMotorRow] = Text_Clean(MotorModelText.Raw());
    state.info[kInfoDriverRow] = Text_Clean(DriverModelText.Raw());
    for (int i = 0; i < 6; ++i) state.txtData[i] = Text_Clean(PRINTINFO.PrintLine[i].Raw());
    Box_Init(kCommentWidth, kCommentLines);
    state.comment = Box_Show(Box_Wrap(Text_Clean(PRINTINFO.PrintComment.Raw())));
    for (int i = 0; i < 4; ++i) state.PrintCheck[i] = PRINTINFO.PrintOption[i];
    state.PrintCheck[kPrintAttachment] = PRINTINFO.Reserved;
    return state;
}

bool Print_CellEditable(int row, int col) { return col == 2 && row != kInfoMotorRow && row != kInfoDriverRow; }

bool Print_CellKeyAllowed(int row, int length, int key) {
    if (key == 46 || key == 8 || key == 144) return true;
    if (row >= 4 && row <= 7) return length <= 29;
    if (row == 8 || row == 9) return length < 18;
    return true;
}

int Print_EnterRow(int row) { return row < kInfoRows - 1 ? row + 1 : row; }

void PRINTINFO_Set(const PrintDialogState& state) {
    Info_Fields([&](int row, auto& field) { field = state.info[row]; });
    for (int i = 0; i < 6; ++i) PRINTINFO.PrintLine[i] = state.txtData[i];
    PRINTINFO.PrintComment = "";
    PRINTINFO.PrintComment = Box_Unwrap();
    for (int i = 0; i < 4; ++i) PRINTINFO.PrintOption[i] = state.PrintCheck[i];
    PRINTINFO.Reserved = 0;
}

void Print_Unload(const PrintDialogState& state) {
    PRINTINFO_Set(state);
    PRINTINFO.PrintInfoSet = 1;
}

PrintRequest Print_Request(const PrintDialogState& state, const std::string& printer, const std::string& date) {
    PrintRequest request;
    request.printer = printer;
    request.txtData = state.txtData;
    request.comment = state.comment;
    request.PrintCheck = state.PrintCheck;
    request.attachment = state.txtTemp;
    request.date = date;
    return request;
}

std::string Status_Line(const StatusWords& words, const std::string& printer, const std::string& defaultPrinter,
                        int jobs) {
    if (defaultPrinter.empty()) return {};
    const std::string prefix = printer == defaultPrinter ? words.defaultPrefix : printer + ":";
    if (jobs >= 0 && jobs <= 99) return prefix + words.queue + std::to_string(jobs);
    return prefix + words.failure;
}

std::string Print_StatusLine(const std::string& printer, const std::string& defaultPrinter, int jobs) {
    static const StatusWords kWords{"Default Printer:", "Online\x81]Document in queue:",
                                    "Attention required:Cannot access document to be printed."};
    return Status_Line(kWords, printer, defaultPrinter, jobs);
}

bool Print_Command(const PrintDialogState& state, ReportLibrary& wr, const PrintRequest& request,
                   const std::function<void(const std::string& path)>& printAttachment) {
    if (request.printer.empty()) return false;
    PRINTINFO_Set(state);
    Report_PrintParts(wr, request);
    if (state.PrintCheck[kPrintAttachment]) {
        if (!File_Readable(state.txtTemp))
            MsgBox("Specified file does not exist.", "Attachment", MsgIcon::Exclamation);
        else
            printAttachment(state.txtTemp);
    }
    return MsgBox("OK to exit printing?", "Print", MsgIcon::None, MsgButtons::YesNo) == MsgAnswer::Yes;
}

bool Print_Export(const PrintRequest& request, const std::string& path) {
    const auto& check = request.PrintCheck;
    if (!check[kPrintCover] && !check[kPrintElements] && !check[kPrintPattern] && !check[kPrintNotes]) {
        MsgBox("There is nothing to export: check an item to print.", "Export PDF", MsgIcon::Exclamation);
        return false;
    }
    if (Report_ExportPdf(path, [&request](ReportLibrary& wr) { Report_PrintParts(wr, request); })) return true;
    MsgBox("The PDF file could not be written.", "Export PDF", MsgIcon::Exclamation);
    return false;
}
