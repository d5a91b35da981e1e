// Renders the component drawings (SVG) into the bitmaps the printed report
// loads: make_bitmaps OUT_FOLDER SIZE FILE.svg... writes OUT_FOLDER/NAME.bmp
// for each drawing, SIZE pixels square on white.
#include <librsvg/rsvg.h>

#include <cstdio>
#include <string>

#include "reports/Bitmap.h"

namespace {

bool Render(const std::string& svg, const std::string& bmp, int size) {
    GError* error = nullptr;
    RsvgHandle* handle = rsvg_handle_new_from_file(svg.c_str(), &error);
    if (!handle) {
        std::fprintf(stderr, "make_bitmaps: %s: %s\n", svg.c_str(), error ? error->message : "unreadable");
        g_clear_error(&error);
        return false;
    }
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, size, size);
    cairo_t* cr = cairo_create(surface);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    const RsvgRectangle viewport{0, 0, static_cast<double>(size), static_cast<double>(size)};
    const bool drawn = rsvg_handle_render_document(handle, cr, &viewport, &error);
    g_clear_error(&error);
    g_object_unref(handle);
    cairo_destroy(cr);
    const bool written = drawn && Bitmap_Write(surface, bmp);
    cairo_surface_destroy(surface);
    if (!written) std::fprintf(stderr, "make_bitmaps: cannot write %s\n", bmp.c_str());
    return written;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: make_bitmaps OUT_FOLDER SIZE FILE.svg...\n");
        return 2;
    }
    const std::string folder = argv[1];
    const int size = std::stoi(argv[2]);
    for (int i = 3; i < argc; ++i) {
        std::string name = argv[i];
        name = name.substr(name.find_last_of('/') + 1);
        name = name.substr(0, name.rfind('.')) + ".bmp";
        if (!Render(argv[i], folder + "/" + name, size)) return 1;
    }
    return 0;
}
