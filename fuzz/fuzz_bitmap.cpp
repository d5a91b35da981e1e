// A bitmap file as the report's pictures may be replaced with: any bytes at
// all. Decoding either refuses them or gives a picture of a sane size, which
// written out and read back gives the same pixels.
#include <cairo.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz/FuzzFolder.h"
#include "reports/Bitmap.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string& folder = Fuzz_Folder();
    cairo_surface_t* image = Bitmap_Decode(std::string(reinterpret_cast<const char*>(data), size));
    if (!image) return 0;
    const int w = cairo_image_surface_get_width(image), h = cairo_image_surface_get_height(image);
    if (w <= 0 || h <= 0 || w > 20000 || h > 20000 || static_cast<std::size_t>(w) * h * 3 > size) std::abort();
    const std::string path = folder + "/picture.bmp";
    if (!Bitmap_Write(image, path)) std::abort();
    cairo_surface_t* back = Bitmap_Read(path);
    if (!back || cairo_image_surface_get_width(back) != w || cairo_image_surface_get_height(back) != h) std::abort();
    cairo_surface_flush(image);
    cairo_surface_flush(back);
    for (int y = 0; y < h; ++y) {
        const auto* a = reinterpret_cast<const uint32_t*>(cairo_image_surface_get_data(image) +
                                                          static_cast<std::size_t>(y) * cairo_image_surface_get_stride(image));
        const auto* b = reinterpret_cast<const uint32_t*>(cairo_image_surface_get_data(back) +
                                                          static_cast<std::size_t>(y) * cairo_image_surface_get_stride(back));
        for (int x = 0; x < w; ++x)
            if ((a[x] & 0xFFFFFF) != (b[x] & 0xFFFFFF)) std::abort();
    }
    cairo_surface_destroy(back);
    cairo_surface_destroy(image);
    return 0;
}
