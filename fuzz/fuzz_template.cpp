// A report template as the folder of the program may hold it: any bytes at
// all. Loading either refuses them (-1) or gives a report whose objects take
// texts, pictures and hiding in any order, and whose first page renders;
// no call may crash, whatever the objects are.
#include <cairo.h>
#include <pugixml.hpp>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "fuzz/FuzzFolder.h"
#include "reports/Bitmap.h"
#include "reports/PageSink.h"
#include "reports/SvgReport.h"

namespace {

// Pages drawn onto a small picture, a tenth of the page's size.
class PictureSink : public PageSink {
public:
    PictureSink() : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 60, 85)) {
        cr_ = cairo_create(surface_);
        cairo_scale(cr_, 0.1, 0.1);
    }
    ~PictureSink() override {
        cairo_destroy(cr_);
        cairo_surface_destroy(surface_);
    }
    cairo_t* BeginJob(const std::string&, const std::string&) override { return cr_; }
    bool EndJob() override { return true; }

private:
    cairo_surface_t* surface_;
};

// A small picture for wrLoadDIB, written once.
const std::string& Picture(const std::string& folder) {
    static const std::string path = [&] {
        const std::string p = folder + "/picture.bmp";
        cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 3, 2);
        Bitmap_Write(s, p);
        cairo_surface_destroy(s);
        return p;
    }();
    return path;
}

// The ids of the template in document order, at most 24.
std::vector<std::string> Ids(const uint8_t* data, size_t size) {
    std::vector<std::string> ids;
    pugi::xml_document doc;
    if (!doc.load_buffer(data, size)) return ids;
    for (const pugi::xpath_node& n : doc.select_nodes("//*[@id]")) {
        ids.emplace_back(n.node().attribute("id").value());
        if (ids.size() == 24) break;
    }
    return ids;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string& folder = Fuzz_Folder();
    const std::string& picture = Picture(folder);
    const std::string path = folder + "/template.svg";
    Fuzz_Write(path, data, size);
    PictureSink sink;
    SvgReportLibrary wr(sink);
    const int32_t h = wr.wrLoadReport(path);
    if (h == -1) return 0;
    const std::vector<std::string> ids = Ids(data, size);
    // Every object takes each kind of call, the texts twice, so that a call
    // on an object meets whatever the calls before did to the document.
    for (int round = 0; round < 2; ++round)
        for (std::size_t i = 0; i < ids.size(); ++i) {
            const std::string& id = ids[(i * 7 + round) % ids.size()];
            switch ((i + round) % 4) {
                case 0: wr.wrSetText(h, id, "Line one\r\n\r\nline \xE8 three\n"); break;
                case 1: wr.wrLoadDIB(h, id, picture); break;
                case 2: wr.wrSetObjectProp(h, id, "VISIBLE", ReportProperty{}); break;
                default: wr.wrSetText(h, id, "x"); break;
            }
            wr.wrGetErrorCode(h, -1);
        }
    wr.wrSetText(h, "PageNo", "(1/1)");
    const int32_t first[] = {1, 0}, second[] = {2, 0};
    if (wr.wrOpenPrinter(h, 0, 0)) {
        wr.wrPrint(h, first, "");
        wr.wrPrint(h, second, "");
        wr.wrClosePrinter(h, 1, 0);
    }
    if (!wr.wrUnloadReport(h)) std::abort();
    return 0;
}
