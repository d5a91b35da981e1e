// Opens with its header: reports/PdfExport.h.
#include "reports/PdfExport.h"

#include "reports/SvgReport.h"

bool Report_ExportPdf(const std::string& path, const std::function<void(ReportLibrary& wr)>& flow) {
    PdfFileSink sink(path);
    SvgReportLibrary engine(sink);
    flow(engine);
    return sink.Finish();
}
