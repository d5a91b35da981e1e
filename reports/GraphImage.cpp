// Opens with its header: reports/GraphImage.h.
#include "reports/GraphImage.h"

#include <cairo.h>

#include "core/PatarnRows.h"
#include "pattern/Graph.h"
#include "reports/Bitmap.h"

namespace {

void Line(cairo_t* cr, const GraphLine& l) {
    cairo_move_to(cr, l.x1 * kGraphPixelsPerTwip, l.y1 * kGraphPixelsPerTwip);
    cairo_line_to(cr, l.x2 * kGraphPixelsPerTwip, l.y2 * kGraphPixelsPerTwip);
}

bool SaveOne(const GraphDrawing& drawing, const std::string& path) {
    const int w = static_cast<int>(kGraphWidthTwips * kGraphPixelsPerTwip);
    const int h = static_cast<int>(kGraphHeightTwips * kGraphPixelsPerTwip);
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, w, h);
    cairo_t* cr = cairo_create(surface);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_set_source_rgb(cr, 0, 0, 0);
    cairo_set_line_width(cr, 2);
    if (drawing.axes) {
        Line(cr, drawing.axisX);
        Line(cr, drawing.axisY);
    }
    cairo_stroke(cr);
    cairo_set_line_width(cr, 4);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    for (const GraphLine& l : drawing.curve) Line(cr, l);
    cairo_stroke(cr);
    cairo_destroy(cr);
    const bool ok = Bitmap_Write(surface, path);
    cairo_surface_destroy(surface);
    return ok;
}

}  // namespace

bool Graph_Save(const PatarnTable& table, const std::string& folder) {
    const int n = Patarn_CountRows(table);
    const bool speed = SaveOne(Graph_Speed(table, n, kGraphWidthTwips, kGraphHeightTwips), folder + "/" + kRotationBitmap);
    const bool torque = SaveOne(Graph_Torque(table, n, kGraphWidthTwips, kGraphHeightTwips), folder + "/" + kTorqueBitmap);
    return speed && torque;
}
