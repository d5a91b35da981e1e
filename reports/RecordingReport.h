// A report engine that renders nothing: it notes every call, in order, and
// succeeds, except for calls it is told to fail. The command line lists the
// filling it saw; the tests read the whole trace.
#pragma once

#include <set>
#include <utility>

#include "reports/ReportLibrary.h"

struct ReportCall {
    std::string op;        // the operation, as "wrSetText"
    std::string report;    // the template's file name, empty before a load
    std::string object;    // the object, where the operation names one
    std::string value;     // the text, the bitmap path, the printer or the page list
};

class RecordingReportLibrary : public ReportLibrary {
public:
    int32_t wrInit(int32_t& work) override;
    int32_t wrExit(int32_t& work) override;
    int32_t wrSetErrorDispMode(int32_t mode) override;
    int32_t wrLoadReport(const std::string& path) override;
    int32_t wrUnloadReport(int32_t handle) override;
    int32_t wrSetPrintMode(int32_t handle, int32_t mode) override;
    int32_t wrSetPrinterDevice(int32_t handle, const std::string& printer) override;
    int32_t wrSetText(int32_t handle, const std::string& object, const std::string& text) override;
    int32_t wrSetObjectProp(int32_t handle, const std::string& object, const std::string& property,
                            const ReportProperty& record) override;
    int32_t wrLoadDIB(int32_t handle, const std::string& object, const std::string& bitmapPath) override;
    int32_t wrGetErrorCode(int32_t handle, int32_t which) override;
    int32_t wrOpenPrinter(int32_t handle, std::uintptr_t window, int32_t flags) override;
    int32_t wrPrint(int32_t handle, const int32_t* pages, const std::string& text) override;
    int32_t wrClosePrinter(int32_t handle, int32_t a, int32_t b) override;

    // The operation fails whenever it names this object (or, for calls that
    // name none, at every call).
    void FailOn(const std::string& op, const std::string& object = {});

    const std::vector<ReportCall>& Calls() const { return calls_; }

private:
    int32_t Note(const std::string& op, const std::string& object = {}, const std::string& value = {});

    std::vector<ReportCall> calls_;
    std::set<std::pair<std::string, std::string>> failing_;
    std::string report_;
};
