// Opens with its header: reports/PageSink.h.
#include "reports/PageSink.h"

#include <cairo-pdf.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "reports/Printers.h"

namespace {

cairo_surface_t* NewPdf(const std::string& path) {
    cairo_surface_t* s = cairo_pdf_surface_create(path.c_str(), kPageWidthPt, kPageHeightPt);
    if (cairo_surface_status(s) == CAIRO_STATUS_SUCCESS) return s;
    cairo_surface_destroy(s);
    return nullptr;
}

// Finishes the surface and tells whether every page reached the file.
bool Close(cairo_t*& cr, cairo_surface_t*& surface) {
    if (!surface) return false;
    cairo_destroy(cr);
    cr = nullptr;
    cairo_surface_finish(surface);
    const bool ok = cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    surface = nullptr;
    return ok;
}

}  // namespace

void PageSink::PageDone() {
    cairo_show_page(cr_);
    ++pages_;
}

PdfFileSink::PdfFileSink(std::string path) : path_(std::move(path)) {}

PdfFileSink::~PdfFileSink() { Close(cr_, surface_); }

cairo_t* PdfFileSink::BeginJob(const std::string&, const std::string&) {
    if (!surface_) {
        surface_ = NewPdf(path_);
        if (!surface_) return nullptr;
        cr_ = cairo_create(surface_);
    }
    return cr_;
}

bool PdfFileSink::EndJob() { return surface_ && cairo_surface_status(surface_) == CAIRO_STATUS_SUCCESS; }

bool PdfFileSink::Finish() { return Close(cr_, surface_) && pages_ > 0; }

PrinterSink::~PrinterSink() { Drop(); }

void PrinterSink::Drop() {
    Close(cr_, surface_);
    if (!path_.empty()) unlink(path_.c_str());
    path_.clear();
}

cairo_t* PrinterSink::BeginJob(const std::string& printer, const std::string& title) {
    Drop();
    const char* tmp = std::getenv("TMPDIR");
    std::string path = std::string(tmp && *tmp ? tmp : "/tmp") + "/torvane-print-XXXXXX";
    const int fd = mkstemp(path.data());
    if (fd < 0) return nullptr;
    close(fd);
    path_ = path;
    surface_ = NewPdf(path_);
    if (!surface_) {
        Drop();
        return nullptr;
    }
    printer_ = printer;
    title_ = title;
    pages_ = 0;
    cr_ = cairo_create(surface_);
    return cr_;
}

bool PrinterSink::EndJob() {
    const bool written = Close(cr_, surface_);
    const bool printed = written && (pages_ == 0 || Printer_PrintFile(printer_, path_, title_));
    Drop();
    return printed;
}
