// The report's bitmaps: writing and decoding 24- and 32-bit device-independent bitmaps, refusing malformed ones, and the two pattern graphs saved as pictures.
#include <gtest/gtest.h>

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <string>

#include "core/Tables.h"
#include "reports/Bitmap.h"
#include "reports/GraphImage.h"
#include "tests/support/TestState.h"

namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

Surface Own(cairo_surface_t* s) { return Surface(s, &cairo_surface_destroy); }

uint32_t Pixel(cairo_surface_t* s, int x, int y) {
    cairo_surface_flush(s);
    const unsigned char* row = cairo_image_surface_get_data(s) + static_cast<std::size_t>(y) * cairo_image_surface_get_stride(s);
    return reinterpret_cast<const uint32_t*>(row)[x] & 0xFFFFFF;
}

void Put16(std::string& b, uint16_t v) {
    b.push_back(static_cast<char>(v & 0xFF));
    b.push_back(static_cast<char>(v >> 8));
}
void Put32(std::string& b, uint32_t v) {
    Put16(b, static_cast<uint16_t>(v & 0xFFFF));
    Put16(b, static_cast<uint16_t>(v >> 16));
}

// A bitmap file written here byte by byte: width by height (negative for
// top-down) pixels of bits 24 or 32, pixel (x, y) of the picture given by colour.
template <typename Colour>
std::string Bmp(int32_t width, int32_t height, uint16_t bits, Colour colour, uint32_t compression = 0) {
    const int rows = height < 0 ? -height : height;
    const std::size_t rowBytes = (static_cast<std::size_t>(width) * bits / 8 + 3) & ~std::size_t{3};
    std::string b = "BM";
    Put32(b, static_cast<uint32_t>(54 + rowBytes * rows));
    Put32(b, 0);
    Put32(b, 54);
    Put32(b, 40);
    Put32(b, static_cast<uint32_t>(width));
    Put32(b, static_cast<uint32_t>(height));
    Put16(b, 1);
    Put16(b, bits);
    Put32(b, compression);
    Put32(b, static_cast<uint32_t>(rowBytes * rows));
    Put32(b, 3780);
    Put32(b, 3780);
    Put32(b, 0);
    Put32(b, 0);
    for (int stored = 0; stored < rows; ++stored) {
        const int y = height < 0 ? stored : rows - 1 - stored;
        std::string row;
        for (int x = 0; x < width; ++x) {
            const uint32_t c = colour(x, y);
            row.push_back(static_cast<char>(c & 0xFF));
            row.push_back(static_cast<char>((c >> 8) & 0xFF));
            row.push_back(static_cast<char>((c >> 16) & 0xFF));
            if (bits == 32) row.push_back('\0');
        }
        row.resize(rowBytes, '\0');
        b += row;
    }
    return b;
}

uint32_t Pattern(int x, int y) { return static_cast<uint32_t>((x * 37 + y * 11) & 0xFF) << 16 | static_cast<uint32_t>(x * 5 & 0xFF) << 8 | static_cast<uint32_t>(y * 7 & 0xFF); }

class BitmapTest : public StateTest {};

// The graphs' pictures in pixels.
constexpr int kWidth = static_cast<int>(kGraphWidthTwips * kGraphPixelsPerTwip);
constexpr int kHeight = static_cast<int>(kGraphHeightTwips * kGraphPixelsPerTwip);

int Count(cairo_surface_t* s, uint32_t colour) {
    int n = 0;
    for (int y = 0; y < cairo_image_surface_get_height(s); ++y)
        for (int x = 0; x < cairo_image_surface_get_width(s); ++x) n += Pixel(s, x, y) == colour;
    return n;
}

// Whether any pixel near (x, y) is black.
bool BlackNear(cairo_surface_t* s, int x, int y, int reach = 3) {
    for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx)
            if (Pixel(s, x + dx, y + dy) == 0) return true;
    return false;
}

}  // namespace

TEST_F(BitmapTest, A24BitBitmapWrittenDecodesToTheSamePixels) {
    for (const int width : {1, 2, 3, 5, 64}) {
        Surface image = Own(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, 7));
        unsigned char* data = cairo_image_surface_get_data(image.get());
        for (int y = 0; y < 7; ++y)
            for (int x = 0; x < width; ++x)
                reinterpret_cast<uint32_t*>(data + y * cairo_image_surface_get_stride(image.get()))[x] = Pattern(x, y);
        cairo_surface_mark_dirty(image.get());
        const std::string path = appDir.File("round.bmp");
        ASSERT_TRUE(Bitmap_Write(image.get(), path));
        const std::string bytes = ReadFile(path);
        ASSERT_EQ(bytes.substr(0, 2), "BM");
        EXPECT_EQ(bytes.size(), 54 + ((static_cast<std::size_t>(width) * 3 + 3) & ~std::size_t{3}) * 7) << width;
        EXPECT_EQ(static_cast<unsigned char>(bytes[28]), 24);
        Surface back = Own(Bitmap_Read(path));
        ASSERT_NE(back.get(), nullptr) << width;
        ASSERT_EQ(cairo_image_surface_get_width(back.get()), width);
        ASSERT_EQ(cairo_image_surface_get_height(back.get()), 7);
        for (int y = 0; y < 7; ++y)
            for (int x = 0; x < width; ++x) ASSERT_EQ(Pixel(back.get(), x, y), Pattern(x, y)) << width << " " << x << "," << y;
    }
}

TEST_F(BitmapTest, TheFileIsBottomUpAsBitmapsAre) {
    Surface image = Own(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 1, 2));
    unsigned char* data = cairo_image_surface_get_data(image.get());
    reinterpret_cast<uint32_t*>(data)[0] = 0xFF0000;  // top: red
    reinterpret_cast<uint32_t*>(data + cairo_image_surface_get_stride(image.get()))[0] = 0x0000FF;  // bottom: blue
    cairo_surface_mark_dirty(image.get());
    ASSERT_TRUE(Bitmap_Write(image.get(), appDir.File("two.bmp")));
    const std::string b = ReadFile(appDir.File("two.bmp"));
    ASSERT_EQ(b.size(), 54u + 8u);
    EXPECT_EQ(static_cast<unsigned char>(b[54]), 0xFF);  // first stored row is the bottom one: blue, B G R
    EXPECT_EQ(static_cast<unsigned char>(b[56]), 0x00);
    EXPECT_EQ(static_cast<unsigned char>(b[58]), 0x00);
    EXPECT_EQ(static_cast<unsigned char>(b[60]), 0xFF);
}

TEST_F(BitmapTest, BottomUpAndTopDownBitmapsOf24And32BitsDecode) {
    for (const uint16_t bits : {24, 32})
        for (const int32_t height : {5, -5}) {
            Surface s = Own(Bitmap_Decode(Bmp(9, height, bits, Pattern)));
            ASSERT_NE(s.get(), nullptr) << bits << " " << height;
            EXPECT_EQ(cairo_image_surface_get_width(s.get()), 9);
            EXPECT_EQ(cairo_image_surface_get_height(s.get()), 5);
            for (int y = 0; y < 5; ++y)
                for (int x = 0; x < 9; ++x) EXPECT_EQ(Pixel(s.get(), x, y), Pattern(x, y)) << bits << " " << height;
        }
}

TEST_F(BitmapTest, MalformedBitmapsAreRefused) {
    const std::string good = Bmp(4, 4, 24, Pattern);
    ASSERT_NE(Own(Bitmap_Decode(good)).get(), nullptr);
    EXPECT_EQ(Bitmap_Decode(""), nullptr);
    EXPECT_EQ(Bitmap_Decode("BM"), nullptr);
    EXPECT_EQ(Bitmap_Decode(good.substr(0, 53)), nullptr);               // a header cut short
    EXPECT_EQ(Bitmap_Decode(good.substr(0, good.size() - 1)), nullptr);  // pixels cut short
    std::string notBm = good;
    notBm[0] = 'X';
    EXPECT_EQ(Bitmap_Decode(notBm), nullptr);
    EXPECT_EQ(Bitmap_Decode(Bmp(4, 4, 24, Pattern, 1)), nullptr);  // compressed
    EXPECT_EQ(Bitmap_Decode(Bmp(4, 4, 16, Pattern)), nullptr);     // other depths
    EXPECT_EQ(Bitmap_Decode(Bmp(4, 4, 8, Pattern)), nullptr);
    EXPECT_EQ(Bitmap_Decode(Bmp(0, 4, 24, Pattern)), nullptr);  // zero size
    EXPECT_EQ(Bitmap_Decode(Bmp(4, 0, 24, Pattern)), nullptr);
    std::string negative = good;
    negative[18] = static_cast<char>(0xFC), negative[19] = negative[20] = negative[21] = static_cast<char>(0xFF);  // -4
    EXPECT_EQ(Bitmap_Decode(negative), nullptr);
    std::string smallHeader = good;
    smallHeader[14] = 12;  // an older, smaller header
    EXPECT_EQ(Bitmap_Decode(smallHeader), nullptr);
    std::string farOffset = good;
    farOffset[10] = static_cast<char>(0xF0);
    farOffset[11] = static_cast<char>(0xFF);
    farOffset[12] = static_cast<char>(0xFF);
    farOffset[13] = static_cast<char>(0x7F);
    EXPECT_EQ(Bitmap_Decode(farOffset), nullptr);
    // Sides beyond 20000 pixels, whatever the bytes claim.
    std::string wide = good;
    wide[18] = static_cast<char>(0x21), wide[19] = static_cast<char>(0x4E), wide[20] = 0, wide[21] = 0;  // 20001
    EXPECT_EQ(Bitmap_Decode(wide), nullptr);
    std::string huge = good;
    huge[22] = static_cast<char>(0xFF), huge[23] = static_cast<char>(0xFF), huge[24] = static_cast<char>(0xFF),
    huge[25] = static_cast<char>(0x7F);
    EXPECT_EQ(Bitmap_Decode(huge), nullptr);
    std::string hugeDown = good;
    hugeDown[22] = 1, hugeDown[23] = 0, hugeDown[24] = 0, hugeDown[25] = static_cast<char>(0x80);  // INT32_MIN + 1
    EXPECT_EQ(Bitmap_Decode(hugeDown), nullptr);
    // A tall bitmap whose pixels are not all there.
    std::string tall = good;
    tall[22] = static_cast<char>(0x10), tall[23] = static_cast<char>(0x27);  // 10000 rows
    EXPECT_EQ(Bitmap_Decode(tall), nullptr);
}

TEST_F(BitmapTest, AMissingOrUnreadableFileReadsAsNothing) {
    EXPECT_EQ(Bitmap_Read(appDir.File("missing.bmp")), nullptr);
    EXPECT_EQ(Bitmap_Read(appDir.Path()), nullptr);
    WriteFile(appDir.File("text.bmp"), "hello");
    EXPECT_EQ(Bitmap_Read(appDir.File("text.bmp")), nullptr);
}

TEST_F(BitmapTest, AWriteIntoAMissingFolderFails) {
    Surface image = Own(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 4, 4));
    EXPECT_FALSE(Bitmap_Write(image.get(), appDir.File("no/such/folder.bmp")));
}

TEST_F(BitmapTest, GraphsAreSavedAsBlackCurvesOnWhite) {
    // One row: speed up to 1000 in one second at a torque of 2.
    Patarn[1].DeltaTime = 1;
    Patarn[1].Time = 1;
    Patarn[1].Speed = 1000;
    Patarn[1].Torque = 2;
    Patarn[1].RowState = 3;
    PatternRowCount = 1;
    ASSERT_TRUE(Graph_Save(Patarn, appDir.Path()));
    Surface speed = Own(Bitmap_Read(appDir.File("Rotation.bmp")));
    Surface torque = Own(Bitmap_Read(appDir.File("Torque.bmp")));
    ASSERT_NE(speed.get(), nullptr);
    ASSERT_NE(torque.get(), nullptr);
    for (cairo_surface_t* s : {speed.get(), torque.get()}) {
        EXPECT_EQ(cairo_image_surface_get_width(s), kWidth);
        EXPECT_EQ(cairo_image_surface_get_height(s), kHeight);
        EXPECT_EQ(Pixel(s, 5, 5), 0xFFFFFFu);  // the margin is white
        EXPECT_EQ(Pixel(s, kWidth - 5, kHeight - 5), 0xFFFFFFu);
        EXPECT_GT(Count(s, 0), 100);  // black lines
        EXPECT_GT(Count(s, 0xFFFFFF), kWidth * kHeight / 2);
    }
    // The twips of the margin (100) and the zero line, in pixels.
    const int margin = static_cast<int>(100 * kGraphPixelsPerTwip);
    const int mid = static_cast<int>(((kGraphHeightTwips - 200) / 2 + 100) * kGraphPixelsPerTwip);
    // The speed line runs from the zero line at the left to the top at the right.
    EXPECT_TRUE(BlackNear(speed.get(), kWidth / 2, (mid + margin) / 2));
    EXPECT_TRUE(BlackNear(speed.get(), kWidth - margin, margin));
    EXPECT_FALSE(BlackNear(speed.get(), kWidth / 2, kHeight - margin - 20));  // nothing below the axis
    // The torque stands at the top from the left margin to the right one.
    EXPECT_TRUE(BlackNear(torque.get(), margin, (mid + margin) / 2));
    EXPECT_TRUE(BlackNear(torque.get(), kWidth / 2, margin));
    EXPECT_TRUE(BlackNear(torque.get(), kWidth - margin - 5, margin));
    // Both axes: the zero line and the left edge.
    EXPECT_TRUE(BlackNear(speed.get(), kWidth / 3, mid, 1));
    EXPECT_TRUE(BlackNear(torque.get(), margin, kHeight - margin - 5, 1));
}

TEST_F(BitmapTest, AnEmptyPatternGivesBlankPicturesWithoutAxes) {
    PatternRowCount = 0;
    ASSERT_TRUE(Graph_Save(Patarn, appDir.Path()));
    for (const char* name : {"Rotation.bmp", "Torque.bmp"}) {
        Surface s = Own(Bitmap_Read(appDir.File(name)));
        ASSERT_NE(s.get(), nullptr) << name;
        EXPECT_EQ(cairo_image_surface_get_width(s.get()), kWidth);
        EXPECT_EQ(Count(s.get(), 0xFFFFFF), kWidth * kHeight) << name;
    }
}

TEST_F(BitmapTest, SavingIntoAMissingFolderFails) {
    EXPECT_FALSE(Graph_Save(Patarn, appDir.File("missing")));
}
