// Opens with its header: reports/RecordingReport.h.
#include "reports/RecordingReport.h"

int32_t RecordingReportLibrary::Note(const std::string& op, const std::string& object, const std::string& value) {
    calls_.push_back({op, report_, object, value});
    return failing_.count({op, object}) ? 0 : 1;
}

void RecordingReportLibrary::FailOn(const std::string& op, const std::string& object) { failing_.insert({op, object}); }

int32_t RecordingReportLibrary::wrInit(int32_t& work) {
    work = 1;
    return Note("wrInit");
}

int32_t RecordingReportLibrary::wrExit(int32_t& work) {
    work = 0;
    return Note("wrExit");
}

int32_t RecordingReportLibrary::wrSetErrorDispMode(int32_t mode) { return Note("wrSetErrorDispMode", {}, std::to_string(mode)); }

int32_t RecordingReportLibrary::wrLoadReport(const std::string& path) {
    report_ = path.substr(path.find_last_of('/') + 1);
    return Note("wrLoadReport", {}, path) ? 1 : -1;
}

int32_t RecordingReportLibrary::wrUnloadReport(int32_t) {
    const int32_t result = Note("wrUnloadReport");
    report_.clear();
    return result;
}

int32_t RecordingReportLibrary::wrSetPrintMode(int32_t, int32_t mode) { return Note("wrSetPrintMode", {}, std::to_string(mode)); }

int32_t RecordingReportLibrary::wrSetPrinterDevice(int32_t, const std::string& printer) {
    return Note("wrSetPrinterDevice", {}, printer);
}

int32_t RecordingReportLibrary::wrSetText(int32_t, const std::string& object, const std::string& text) {
    return Note("wrSetText", object, text);
}

int32_t RecordingReportLibrary::wrSetObjectProp(int32_t, const std::string& object, const std::string& property,
                                                const ReportProperty& record) {
    return Note("wrSetObjectProp", object, property + (record.AllZero() ? "" : " (set)"));
}

int32_t RecordingReportLibrary::wrLoadDIB(int32_t, const std::string& object, const std::string& bitmapPath) {
    return Note("wrLoadDIB", object, bitmapPath);
}

int32_t RecordingReportLibrary::wrGetErrorCode(int32_t, int32_t) { return Note("wrGetErrorCode"); }

int32_t RecordingReportLibrary::wrOpenPrinter(int32_t, std::uintptr_t, int32_t) { return Note("wrOpenPrinter"); }

int32_t RecordingReportLibrary::wrPrint(int32_t, const int32_t* pages, const std::string&) {
    std::string list;
    for (; *pages; ++pages) list += (list.empty() ? "" : ",") + std::to_string(*pages);
    return Note("wrPrint", {}, list);
}

int32_t RecordingReportLibrary::wrClosePrinter(int32_t, int32_t, int32_t) { return Note("wrClosePrinter"); }
