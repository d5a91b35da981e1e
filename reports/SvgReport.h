// The report engine on our own templates. A template is an SVG document of
// A4 pages: each page is a group of the root with the id "Page1", "Page2",
// ...; what stands outside the page groups shows on every page. Every object
// is an element whose id is the object's name: a text element takes its text
// (CR LF starts a new line, each 1.25 font sizes below the one before), a
// rectangle takes a bitmap fitted into its box, and any element hides.
// Printing renders the pages with librsvg onto the pages of the sink.
#pragma once

#include <map>
#include <memory>

#include "reports/PageSink.h"
#include "reports/ReportLibrary.h"

class SvgReportLibrary : public ReportLibrary {
public:
    explicit SvgReportLibrary(PageSink& sink);
    ~SvgReportLibrary() override;

    // Starting and ending need nothing; error boxes are never shown.
    int32_t wrInit(int32_t& work) override;
    int32_t wrExit(int32_t& work) override;
    int32_t wrSetErrorDispMode(int32_t mode) override;
    // Reads and parses the template; -1 for a file that is no SVG document.
    int32_t wrLoadReport(const std::string& path) override;
    int32_t wrUnloadReport(int32_t handle) override;

    // The objects. A text fails for an object that is missing or no text
    // element; "VISIBLE" with the all-zero record hides, with any other shows
    // again; a bitmap fails for an object that is no rectangle and for a file
    // it cannot read. The error code tells the last failure's reason, 0 for none.
    int32_t wrSetText(int32_t handle, const std::string& object, const std::string& text) override;
    int32_t wrSetObjectProp(int32_t handle, const std::string& object, const std::string& property,
                            const ReportProperty& record) override;
    int32_t wrLoadDIB(int32_t handle, const std::string& object, const std::string& bitmapPath) override;
    int32_t wrGetErrorCode(int32_t handle, int32_t which) override;

    // Printing: a job of the sink on the printer set, its pages rendered by
    // wrPrint, delivered when the printer closes.
    int32_t wrSetPrintMode(int32_t handle, int32_t mode) override;
    int32_t wrSetPrinterDevice(int32_t handle, const std::string& printer) override;
    int32_t wrOpenPrinter(int32_t handle, std::uintptr_t window, int32_t flags) override;
    int32_t wrPrint(int32_t handle, const int32_t* pages, const std::string& text) override;
    int32_t wrClosePrinter(int32_t handle, int32_t a, int32_t b) override;

    struct Report;

private:
    Report* Find(int32_t handle);

    PageSink& sink_;
    std::map<int32_t, std::unique_ptr<Report>> reports_;
    int32_t next_ = 1;
};

// The largest template file read.
inline constexpr std::size_t kTemplateLimit = 8u << 20;
