// Opens with its header: reports/Bitmap.h.
#include "reports/Bitmap.h"

#include <cstdint>
#include <fstream>

#include "base/ReadFile.h"

namespace {

constexpr std::size_t kFileHeader = 14, kInfoHeader = 40;
constexpr int kMaxSide = 20000;
constexpr std::size_t kMaxFile = 256u << 20;

void Put16(std::string& out, uint16_t v) {
    out.push_back(static_cast<char>(v & 0xFF));
    out.push_back(static_cast<char>(v >> 8));
}
void Put32(std::string& out, uint32_t v) {
    Put16(out, static_cast<uint16_t>(v & 0xFFFF));
    Put16(out, static_cast<uint16_t>(v >> 16));
}
uint32_t Get32(const std::string& b, std::size_t at) {
    uint32_t v = 0;
    for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(b[at + i]);
    return v;
}
uint16_t Get16(const std::string& b, std::size_t at) {
    return static_cast<uint16_t>(static_cast<unsigned char>(b[at]) | static_cast<unsigned char>(b[at + 1]) << 8);
}
std::size_t RowBytes(int width, int bytesPerPixel) {
    return (static_cast<std::size_t>(width) * bytesPerPixel + 3) & ~std::size_t{3};
}

}  // namespace

bool Bitmap_Write(cairo_surface_t* surface, const std::string& path) {
    cairo_surface_flush(surface);
    const int w = cairo_image_surface_get_width(surface), h = cairo_image_surface_get_height(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    const unsigned char* data = cairo_image_surface_get_data(surface);
    if (!data || w <= 0 || h <= 0) return false;
    const std::size_t row = RowBytes(w, 3), image = row * h;
    std::string out;
    out.reserve(kFileHeader + kInfoHeader + image);
    out += "BM";
    Put32(out, static_cast<uint32_t>(kFileHeader + kInfoHeader + image));
    Put32(out, 0);
    Put32(out, kFileHeader + kInfoHeader);
    Put32(out, kInfoHeader);
    Put32(out, static_cast<uint32_t>(w));
    Put32(out, static_cast<uint32_t>(h));
    Put16(out, 1);
    Put16(out, 24);
    Put32(out, 0);
    Put32(out, static_cast<uint32_t>(image));
    Put32(out, 3780);  // 96 dpi
    Put32(out, 3780);
    Put32(out, 0);
    Put32(out, 0);
    for (int y = h - 1; y >= 0; --y) {
        const auto* px = reinterpret_cast<const uint32_t*>(data + static_cast<std::size_t>(y) * stride);
        for (int x = 0; x < w; ++x) {
            out.push_back(static_cast<char>(px[x] & 0xFF));
            out.push_back(static_cast<char>((px[x] >> 8) & 0xFF));
            out.push_back(static_cast<char>((px[x] >> 16) & 0xFF));
        }
        out.append(row - static_cast<std::size_t>(w) * 3, '\0');
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(out.data(), static_cast<std::streamsize>(out.size()));
    file.close();
    return static_cast<bool>(file);
}

cairo_surface_t* Bitmap_Decode(const std::string& b) {
    if (b.size() < kFileHeader + kInfoHeader || b[0] != 'B' || b[1] != 'M') return nullptr;
    const uint32_t offset = Get32(b, 10), info = Get32(b, 14);
    const auto width = static_cast<int32_t>(Get32(b, 18)), rawHeight = static_cast<int32_t>(Get32(b, 22));
    const uint16_t bits = Get16(b, 28);
    const uint32_t compression = Get32(b, 30);
    if (info < kInfoHeader || (bits != 24 && bits != 32) || compression != 0) return nullptr;
    if (width <= 0 || width > kMaxSide || rawHeight == 0 || rawHeight < -kMaxSide || rawHeight > kMaxSide)
        return nullptr;
    const bool topDown = rawHeight < 0;
    const int height = topDown ? -rawHeight : rawHeight;
    const int bpp = bits / 8;
    const std::size_t row = RowBytes(width, bpp);
    if (offset > b.size() || (b.size() - offset) / row < static_cast<std::size_t>(height)) return nullptr;

    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
    if (cairo_surface_status(s) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(s);
        return nullptr;
    }
    unsigned char* data = cairo_image_surface_get_data(s);
    const int stride = cairo_image_surface_get_stride(s);
    for (int y = 0; y < height; ++y) {
        const std::size_t src = offset + row * static_cast<std::size_t>(topDown ? y : height - 1 - y);
        auto* px = reinterpret_cast<uint32_t*>(data + static_cast<std::size_t>(y) * stride);
        for (int x = 0; x < width; ++x) {
            const std::size_t at = src + static_cast<std::size_t>(x) * bpp;
            px[x] = static_cast<uint32_t>(static_cast<unsigned char>(b[at])) |
                    static_cast<uint32_t>(static_cast<unsigned char>(b[at + 1])) << 8 |
                    static_cast<uint32_t>(static_cast<unsigned char>(b[at + 2])) << 16 | 0xFF000000u;
        }
    }
    cairo_surface_mark_dirty(s);
    return s;
}

cairo_surface_t* Bitmap_Read(const std::string& path) {
    std::string bytes;
    if (!File_ReadPrefix(path, kMaxFile, bytes)) return nullptr;
    return Bitmap_Decode(bytes);
}
