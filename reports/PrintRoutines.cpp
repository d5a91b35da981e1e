// Opens with its header: reports/PrintRoutines.h.
#include "reports/PrintRoutines.h"

#include <functional>
#include <vector>

#include "core/Tables.h"
#include "core/Text.h"
#include "reports/GraphImage.h"

namespace {

// What a routine's own filling reports: go on to print, or leave at once.
enum class Filled { Print, Leave };

// The frame every print routine shares: start, load, pick the printer, fill,
// print the pages, and unwind.
bool Report_Frame(ReportLibrary& wr, const PrintRequest& request, const char* file, std::vector<int32_t> pages,
                  const std::function<Filled(ReportFill&)>& fill) {
    int32_t work = 0;
    if (!wr.wrInit(work)) return false;
    if (!wr.wrSetErrorDispMode(0)) {
        wr.wrExit(work);
        return false;
    }
    const int32_t handle = wr.wrLoadReport(AppPath + "/" + file);
    if (handle == -1) {
        wr.wrExit(work);
        return false;
    }
    if (!wr.wrSetPrintMode(handle, 0) || !wr.wrSetPrinterDevice(handle, request.printer)) {
        wr.wrUnloadReport(handle);
        wr.wrExit(work);
        return false;
    }
    ReportFill filling{wr, handle, request};
    if (fill(filling) == Filled::Leave) {
        wr.wrExit(work);
        return false;
    }
    bool ok = false;
    if (wr.wrOpenPrinter(handle, 0, 0)) {
        pages.push_back(0);
        const bool printed = wr.wrPrint(handle, pages.data(), "");
        ok = wr.wrClosePrinter(handle, 1, 0) && printed;
    }
    wr.wrUnloadReport(handle);
    wr.wrExit(work);
    return ok;
}

std::string SystemName() { return Text_Clean(PRINTINFO.System.Raw()); }

// The routine's own text: a failure leaves the routine.
Filled Own(ReportFill& f, const std::string& object, const std::string& text) {
    return f.wr.wrSetText(f.ReportHandle, object, text) ? Filled::Print : Filled::Leave;
}

}  // namespace

bool Print_Cover(ReportLibrary& wr, const PrintRequest& request) {
    return Report_Frame(wr, request, kTitleTemplate, {1}, [&](ReportFill& f) {
        f.Report_PageNo(0);
        f.Report_HeadFoot(0);
        f.Report_Customer();
        f.Report_Administrator();
        f.Report_System();
        f.Report_Result();
        const std::string motor(MotorComment.Str());
        return Own(f, "Message", motor.empty() ? request.comment : motor + "\r\n" + request.comment);
    });
}

bool Print_Elements(ReportLibrary& wr, const PrintRequest& request) {
    std::vector<int32_t> pages;
    for (int p = 1; p <= Report_ElementPages(ElementCount); ++p) pages.push_back(p);
    return Report_Frame(wr, request, kElementTemplate, pages, [&](ReportFill& f) {
        f.Report_HeadFoot(1);
        if (Own(f, "System", SystemName()) == Filled::Leave) return Filled::Leave;
        f.Report_PageNo(1);
        f.Report_Elements(ElementCount - 1);
        return Filled::Print;
    });
}

bool Print_Pattern(ReportLibrary& wr, const PrintRequest& request) {
    return Report_Frame(wr, request, kMoveTemplate, {1}, [&](ReportFill& f) {
        f.Report_PageNo(2);
        f.Report_HeadFoot(2);
        if (Own(f, "System", SystemName()) == Filled::Leave) return Filled::Leave;
        Graph_Save(Patarn, AppPath);
        f.Report_Graph();
        f.Report_Pattern();
        return Filled::Print;
    });
}

bool Print_Notes(ReportLibrary& wr, const PrintRequest& request) {
    return Report_Frame(wr, request, kNotesTemplate, {1}, [](ReportFill&) { return Filled::Print; });
}

void Report_PrintParts(ReportLibrary& wr, const PrintRequest& request) {
    const auto& check = request.PrintCheck;
    if (check[kPrintCover]) Print_Cover(wr, request);
    if (check[kPrintElements]) Print_Elements(wr, request);
    if (check[kPrintPattern]) Print_Pattern(wr, request);
    if (check[kPrintNotes]) Print_Notes(wr, request);
}
