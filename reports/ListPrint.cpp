// Opens with its header: reports/ListPrint.h.
#include "reports/ListPrint.h"

#include "base/MsgBox.h"
#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "reports/PrintRoutines.h"

namespace {

constexpr std::array<const char*, kListColumns> kObjects = {"Judge",   "Type",    "Capa",   "Round",  "Inert",
                                                            "Reg_Trq", "Max_Trq", "Permit", "Weight", "Brk_Inert"};

// The text of a motor's cell as the list prints it.
std::string CellText(int col, const std::string& cell) {
    const double value = Val(cell);
    switch (col) {
        case 0:
        case 1: return cell;
        case 4:
        case 9: return Format_Mask(value, kMaskSci4);
        case 5:
        case 6: return Num_Format(value, 0, 1);
        case 8: return NumberText(Val(Format_Mask(value, kMaskOpt2)));
        default: return NumberText(value);
    }
}

}  // namespace

int List_Pages(int count) { return count / kListRowsPerPage + 1; }

bool List_Row(ReportLibrary& wr, int32_t handle, const ListSheet& sheet, int16_t index, const std::string& prefix) {
    for (int col = index < 0 ? 1 : 0; col < kListColumns; ++col) {
        const std::string text = index < 0 ? sheet.units[col] : CellText(col, sheet.motors[index][col]);
        if (!wr.wrSetText(handle, prefix + kObjects[col], text)) return false;
    }
    return true;
}

ListPrinted List_Print(ReportLibrary& wr, const ListSheet& sheet, const std::string& printer,
                       const std::string& date) {
    int32_t work = 0;
    if (!wr.wrInit(work)) return ListPrinted::Failed;
    int32_t handle = -1;
    // The calls made so far are undone in reverse order.
    const auto unwind = [&](bool closePrinter, ListPrinted result) {
        if (closePrinter) wr.wrClosePrinter(handle, 1, 0);
        if (handle != -1) wr.wrUnloadReport(handle);
        wr.wrExit(work);
        return result;
    };
    if (!wr.wrSetErrorDispMode(0)) return unwind(false, ListPrinted::Failed);
    handle = wr.wrLoadReport(AppPath + "/" + kSelectTemplate);
    if (handle == -1) return unwind(false, ListPrinted::Failed);
    if (printer.empty()) {
        MsgBox("Printer is not set.", "Print Motor Series", MsgIcon::Exclamation);
        return unwind(false, ListPrinted::NoPrinter);
    }
    if (!wr.wrSetPrintMode(handle, 0) || !wr.wrSetPrinterDevice(handle, printer) ||
        !wr.wrSetText(handle, "Series", sheet.series) || !wr.wrSetText(handle, "Model", sheet.model) ||
        !wr.wrSetText(handle, "Date", date) || !List_Row(wr, handle, sheet, -1, "Unit.") ||
        !wr.wrOpenPrinter(handle, 0, 0))
        return unwind(false, ListPrinted::Failed);
    const int count = static_cast<int>(sheet.motors.size()), pages = List_Pages(count);
    for (int p = 1; p <= pages; ++p) {
        if (!wr.wrSetText(handle, "PageNo", "(" + std::to_string(p) + "/" + std::to_string(pages) + ")"))
            return unwind(true, ListPrinted::Failed);
        for (int k = (p - 1) * kListRowsPerPage; k < p * kListRowsPerPage; ++k) {
            const std::string prefix = "SelectMtr" + std::to_string(k - (p - 1) * kListRowsPerPage) + ".";
            const bool ok = k < count ? List_Row(wr, handle, sheet, static_cast<int16_t>(k), prefix)
                                      : wr.wrSetObjectProp(handle, prefix, "VISIBLE", ReportProperty{}) != 0;
            if (!ok) return unwind(true, ListPrinted::Failed);
        }
        const int32_t page[] = {1, 0};
        if (!wr.wrPrint(handle, page, "")) return unwind(true, ListPrinted::Failed);
    }
    if (!wr.wrClosePrinter(handle, 1, 0)) return unwind(false, ListPrinted::Failed);
    return unwind(false, ListPrinted::Done);
}
