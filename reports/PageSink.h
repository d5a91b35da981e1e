// Where the rendered pages of the report engine go: every print job of a
// template becomes pages of an A4 PDF. A file sink gathers the pages of all
// jobs into one PDF file (the export); a printer sink makes each job a PDF
// of its own and hands it to the print system.
#pragma once

#include <cairo.h>

#include <string>

inline constexpr double kPageWidthPt = 595.2756, kPageHeightPt = 841.8898;  // A4

class PageSink {
public:
    virtual ~PageSink() = default;
    // A drawing context for the pages of one job on the printer, or nullptr.
    virtual cairo_t* BeginJob(const std::string& printer, const std::string& title) = 0;
    // Ends the page drawn on the context and starts a fresh one.
    void PageDone();
    // Ends the job begun last; false when its pages could not be delivered.
    // A job without pages delivers nothing.
    virtual bool EndJob() = 0;

protected:
    cairo_t* cr_ = nullptr;
    int pages_ = 0;  // pages done in the current file
};

// All jobs into the one PDF file; Finish writes it out.
class PdfFileSink : public PageSink {
public:
    explicit PdfFileSink(std::string path);
    ~PdfFileSink() override;
    PdfFileSink(const PdfFileSink&) = delete;
    PdfFileSink& operator=(const PdfFileSink&) = delete;

    cairo_t* BeginJob(const std::string& printer, const std::string& title) override;
    bool EndJob() override;
    // Closes the file; false when it could not be written or holds no page.
    bool Finish();

private:
    std::string path_;
    cairo_surface_t* surface_ = nullptr;
};

// Each job into a temporary PDF, printed on the job's printer and removed.
class PrinterSink : public PageSink {
public:
    PrinterSink() = default;
    ~PrinterSink() override;
    PrinterSink(const PrinterSink&) = delete;
    PrinterSink& operator=(const PrinterSink&) = delete;

    cairo_t* BeginJob(const std::string& printer, const std::string& title) override;
    bool EndJob() override;

private:
    void Drop();

    std::string printer_, title_, path_;
    cairo_surface_t* surface_ = nullptr;
};
