#include "base/Cp1252.h"

#include <array>
#include <cstdint>

namespace {

// Code points of 0x80..0x9F; the rest of the page equals Latin-1.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CodePoint(unsigned char b) {
    return (b >= 0x80 && b <= 0x9F) ? kHigh[b - 0x80] : char32_t{b};
}

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

char ToByte(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (std::size_t i = 0; i < kHigh.size(); ++i)
        if (kHigh[i] == c) return static_cast<char>(0x80 + i);
    return '?';
}

// Decodes one UTF-8 sequence at s[i]; returns its length, or 0 when malformed.
std::size_t Decode(std::string_view s, std::size_t i, char32_t& c) {
    const auto b = static_cast<unsigned char>(s[i]);
    std::size_t len = b < 0x80 ? 1 : (b >> 5) == 6 ? 2 : (b >> 4) == 14 ? 3 : (b >> 3) == 30 ? 4 : 0;
    if (len == 0 || i + len > s.size()) return 0;
    c = len == 1 ? b : b & (0x7F >> len);
    for (std::size_t k = 1; k < len; ++k) {
        const auto t = static_cast<unsigned char>(s[i + k]);
        if ((t >> 6) != 2) return 0;
        c = (c << 6) | (t & 0x3F);
    }
    // An overlong form, a surrogate or a number beyond Unicode is malformed too:
    // "\xC0\x80" must not sneak a zero byte into a fixed text.
    constexpr char32_t kShortest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kShortest[len] || (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) return 0;
    return len;
}

}  // namespace

std::string Cp1252_ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char ch : bytes) AppendUtf8(out, CodePoint(static_cast<unsigned char>(ch)));
    return out;
}

std::string Utf8_ToCp1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t c = 0;
        const std::size_t len = Decode(utf8, i, c);
        out += len == 0 ? '?' : ToByte(c);
        i += len == 0 ? 1 : len;
    }
    return out;
}
