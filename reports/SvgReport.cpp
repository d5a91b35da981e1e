// Opens with its header: reports/SvgReport.h.
#include "reports/SvgReport.h"

#include <librsvg/rsvg.h>
#include <pugixml.hpp>

#include <sstream>
#include <unordered_map>
#include <vector>

#include "base/Cp1252.h"
#include "base/ReadFile.h"
#include "reports/Bitmap.h"

namespace {

enum ErrorCode : int32_t { kNoError = 0, kNoObject = 1, kBadBitmap = 2, kNoJob = 3, kBadPage = 4 };

constexpr const char* kPictureMark = "torvane-picture";

std::vector<std::string> Lines(const std::string& cp1252) {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < cp1252.size(); ++i) {
        const char c = cp1252[i];
        if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < cp1252.size() && cp1252[i + 1] == '\n') ++i;
            lines.emplace_back();
        } else if (static_cast<unsigned char>(c) >= 0x20) {
            lines.back() += c;
        }
    }
    return lines;
}

std::string Base64(const std::string& bytes) {
    static const char* digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        uint32_t v = static_cast<unsigned char>(bytes[i]) << 16;
        if (i + 1 < bytes.size()) v |= static_cast<unsigned char>(bytes[i + 1]) << 8;
        if (i + 2 < bytes.size()) v |= static_cast<unsigned char>(bytes[i + 2]);
        out += digits[(v >> 18) & 63];
        out += digits[(v >> 12) & 63];
        out += i + 1 < bytes.size() ? digits[(v >> 6) & 63] : '=';
        out += i + 2 < bytes.size() ? digits[v & 63] : '=';
    }
    return out;
}

cairo_status_t AppendPng(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

// Drops the objects that lie inside node's content, which is about to go.
void Forget(std::unordered_map<std::string, pugi::xml_node>& objects, pugi::xml_node node) {
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
        const auto it = objects.find(child.attribute("id").value());
        if (it != objects.end() && it->second == child) objects.erase(it);
        Forget(objects, child);
    }
}

bool Png(cairo_surface_t* image, std::string& png) {
    return cairo_surface_write_to_png_stream(image, AppendPng, &png) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

struct SvgReportLibrary::Report {
    std::string name;
    pugi::xml_document doc;
    std::unordered_map<std::string, pugi::xml_node> objects;
    std::vector<pugi::xml_node> pages;
    std::string printer;
    cairo_t* job = nullptr;
    int32_t error = kNoError;

    int32_t Fail(int32_t code) {
        error = code;
        return 0;
    }
    bool RenderPage(int page);
};

bool SvgReportLibrary::Report::RenderPage(int page) {
    if (pages.empty() ? page != 1 : page < 1 || page > static_cast<int>(pages.size())) return false;
    // The other pages are hidden while this one is written out for rendering.
    std::vector<std::string> display(pages.size());
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (static_cast<int>(i) + 1 == page) continue;
        pugi::xml_attribute a = pages[i].attribute("display");
        if (!a) a = pages[i].append_attribute("display");
        display[i] = a.value();
        a = "none";
    }
    std::ostringstream svg;
    doc.save(svg, "", pugi::format_raw);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (static_cast<int>(i) + 1 == page) continue;
        if (display[i].empty()) pages[i].remove_attribute("display");
        else pages[i].attribute("display") = display[i].c_str();
    }
    const std::string text = svg.str();

    GError* error = nullptr;
    RsvgHandle* handle = rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(text.data()), text.size(), &error);
    if (!handle) {
        g_clear_error(&error);
        return false;
    }
    const RsvgRectangle viewport{0, 0, kPageWidthPt, kPageHeightPt};
    const bool ok = rsvg_handle_render_document(handle, job, &viewport, &error);
    g_clear_error(&error);
    g_object_unref(handle);
    return ok;
}

bool ReportProperty::AllZero() const {
    for (unsigned char b : bytes)
        if (b) return false;
    return true;
}

SvgReportLibrary::SvgReportLibrary(PageSink& sink) : sink_(sink) {}
SvgReportLibrary::~SvgReportLibrary() = default;

SvgReportLibrary::Report* SvgReportLibrary::Find(int32_t handle) {
    const auto it = reports_.find(handle);
    return it == reports_.end() ? nullptr : it->second.get();
}

int32_t SvgReportLibrary::wrInit(int32_t& work) {
    work = 1;
    return 1;
}

int32_t SvgReportLibrary::wrExit(int32_t& work) {
    work = 0;
    return 1;
}

int32_t SvgReportLibrary::wrSetErrorDispMode(int32_t) { return 1; }

int32_t SvgReportLibrary::wrLoadReport(const std::string& path) {
    std::string bytes;
    if (!File_ReadPrefix(path, kTemplateLimit, bytes)) return -1;
    auto report = std::make_unique<Report>();
    if (!report->doc.load_buffer(bytes.data(), bytes.size())) return -1;
    pugi::xml_node root = report->doc.document_element();
    if (std::string_view(root.name()) != "svg") return -1;
    if (!root.attribute("xmlns:xlink")) root.append_attribute("xmlns:xlink") = "http://www.w3.org/1999/xlink";
    for (pugi::xml_node page : root.children("g")) {
        const std::string_view id = page.attribute("id").value();
        if (id == "Page" + std::to_string(report->pages.size() + 1)) report->pages.push_back(page);
    }
    for (pugi::xpath_node n : report->doc.select_nodes("//*[@id]"))
        report->objects.emplace(n.node().attribute("id").value(), n.node());
    report->name = path.substr(path.find_last_of('/') + 1);
    const int32_t handle = next_++;
    reports_.emplace(handle, std::move(report));
    return handle;
}

int32_t SvgReportLibrary::wrUnloadReport(int32_t handle) {
    Report* r = Find(handle);
    if (!r) return 0;
    if (r->job) sink_.EndJob();
    reports_.erase(handle);
    return 1;
}

int32_t SvgReportLibrary::wrSetPrintMode(int32_t handle, int32_t) { return Find(handle) ? 1 : 0; }

int32_t SvgReportLibrary::wrSetPrinterDevice(int32_t handle, const std::string& printer) {
    Report* r = Find(handle);
    if (!r) return 0;
    r->printer = printer;
    return 1;
}

int32_t SvgReportLibrary::wrSetText(int32_t handle, const std::string& object, const std::string& text) {
    Report* r = Find(handle);
    if (!r) return 0;
    const auto it = r->objects.find(object);
    if (it == r->objects.end() || std::string_view(it->second.name()) != "text") return r->Fail(kNoObject);
    pugi::xml_node node = it->second;
    Forget(r->objects, node);
    while (node.first_child()) node.remove_child(node.first_child());
    const std::vector<std::string> lines = Lines(text);
    if (lines.size() == 1) {
        node.append_child(pugi::node_pcdata).set_value(Cp1252_ToUtf8(lines[0]).c_str());
        return 1;
    }
    const double x = node.attribute("x").as_double(), y = node.attribute("y").as_double();
    const double step = 1.25 * node.attribute("font-size").as_double();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        pugi::xml_node span = node.append_child("tspan");
        span.append_attribute("x") = x;
        span.append_attribute("y") = y + step * static_cast<double>(i);
        span.append_child(pugi::node_pcdata).set_value(Cp1252_ToUtf8(lines[i]).c_str());
    }
    return 1;
}

int32_t SvgReportLibrary::wrSetObjectProp(int32_t handle, const std::string& object, const std::string& property,
                                          const ReportProperty& record) {
    Report* r = Find(handle);
    if (!r) return 0;
    const auto it = r->objects.find(object);
    if (it == r->objects.end() || property != "VISIBLE") return r->Fail(kNoObject);
    pugi::xml_node node = it->second;
    node.remove_attribute("display");
    if (record.AllZero()) node.append_attribute("display") = "none";
    return 1;
}

int32_t SvgReportLibrary::wrLoadDIB(int32_t handle, const std::string& object, const std::string& bitmapPath) {
    Report* r = Find(handle);
    if (!r) return 0;
    const auto it = r->objects.find(object);
    if (it == r->objects.end() || std::string_view(it->second.name()) != "rect") return r->Fail(kNoObject);
    cairo_surface_t* image = Bitmap_Read(bitmapPath);
    std::string png;
    const bool encoded = image && Png(image, png);
    if (image) cairo_surface_destroy(image);
    if (!encoded) return r->Fail(kBadBitmap);

    pugi::xml_node box = it->second;
    pugi::xml_node picture = box.next_sibling();
    if (!picture.attribute(kPictureMark)) {
        picture = box.parent().insert_child_after("image", box);
        picture.append_attribute(kPictureMark) = object.c_str();
        for (const char* a : {"x", "y", "width", "height"}) picture.append_attribute(a) = box.attribute(a).value();
        picture.append_attribute("preserveAspectRatio") = "xMidYMid meet";
        picture.append_attribute("xlink:href");
    }
    picture.attribute("xlink:href") = ("data:image/png;base64," + Base64(png)).c_str();
    return 1;
}

int32_t SvgReportLibrary::wrGetErrorCode(int32_t handle, int32_t) {
    Report* r = Find(handle);
    return r ? r->error : 0;
}

int32_t SvgReportLibrary::wrOpenPrinter(int32_t handle, std::uintptr_t, int32_t) {
    Report* r = Find(handle);
    if (!r || r->job) return 0;
    r->job = sink_.BeginJob(r->printer, r->name);
    return r->job ? 1 : r->Fail(kNoJob);
}

int32_t SvgReportLibrary::wrPrint(int32_t handle, const int32_t* pages, const std::string&) {
    Report* r = Find(handle);
    if (!r || !r->job) return r ? r->Fail(kNoJob) : 0;
    for (; *pages; ++pages) {
        if (!r->RenderPage(*pages)) return r->Fail(kBadPage);
        sink_.PageDone();
    }
    return 1;
}

int32_t SvgReportLibrary::wrClosePrinter(int32_t handle, int32_t, int32_t) {
    Report* r = Find(handle);
    if (!r || !r->job) return 0;
    r->job = nullptr;
    return sink_.EndJob() ? 1 : r->Fail(kNoJob);
}
