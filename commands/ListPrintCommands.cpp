// Opens with its header: commands/ListPrintCommands.h.
#include "commands/ListPrintCommands.h"

#include "base/Cp1252.h"
#include "base/MsgBox.h"
#include "commands/PrintCommands.h"
#include "reports/PdfExport.h"

static_assert(kMotorCols == kListColumns, "the list prints every column of the motor grid");

bool ListPrint_MayOpen(const MotorPage& page) { return page.lstSIndex >= 0 && page.lstMIndex >= 0; }

ListSheet ListPrint_Sheet(const MotorPage& page) {
    ListSheet sheet;
    sheet.series = Utf8_ToCp1252(page.lstS.at(page.lstSIndex));
    sheet.model = Utf8_ToCp1252(page.lstM.at(page.lstMIndex));
    for (int col = 0; col < kListColumns; ++col) sheet.units[col] = Utf8_ToCp1252(page.vsfData.Cell(1, col).text);
    for (int row = kFixedRows; row < kFixedRows + MotorRowCount && row < page.vsfData.Rows(); ++row) {
        auto& cells = sheet.motors.emplace_back();
        for (int col = 0; col < kListColumns; ++col) cells[col] = Utf8_ToCp1252(page.vsfData.Cell(row, col).text);
    }
    return sheet;
}

std::string ListPrint_StatusLine(const std::string& printer, const std::string& defaultPrinter, int jobs) {
    // The default printer's prefix is kept byte for byte, each byte one character.
    static const StatusWords kWords{"\x92\xCA\x8F\xED\x8E\x67\x82\xA4\xCC\xDF\xD8\xDD\xC0\x3A",
                                    "on-line\x81]Documents in queue:",
                                    "Attention required: Cannot access document to be printed."};
    return Status_Line(kWords, printer, defaultPrinter, jobs);
}

bool ListPrint_Export(const ListSheet& sheet, const std::string& path, const std::string& date) {
    if (Report_ExportPdf(path, [&](ReportLibrary& wr) { List_Print(wr, sheet, kPdfDevice, date); })) return true;
    MsgBox("The PDF file could not be written.", "Export PDF", MsgIcon::Exclamation);
    return false;
}
