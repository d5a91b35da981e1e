// Byte access at the offsets of the application file's layout tables, so
// that tests check and build files without the code under test.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

inline int16_t I16At(std::string_view b, std::size_t at) {
    return static_cast<int16_t>(static_cast<unsigned char>(b[at]) | static_cast<unsigned char>(b[at + 1]) << 8);
}

inline double F64At(std::string_view b, std::size_t at) {
    uint64_t bits = 0;
    for (int i = 7; i >= 0; --i) bits = bits << 8 | static_cast<unsigned char>(b[at + i]);
    double d;
    std::memcpy(&d, &bits, 8);
    return d;
}

inline std::string TextAt(std::string_view b, std::size_t at, std::size_t size) {
    return std::string(b.substr(at, size));
}

inline void PutI16(std::string& b, std::size_t at, int16_t v) {
    b[at] = static_cast<char>(v & 0xFF);
    b[at + 1] = static_cast<char>((static_cast<uint16_t>(v) >> 8) & 0xFF);
}

inline void PutF64(std::string& b, std::size_t at, double v) {
    uint64_t bits;
    std::memcpy(&bits, &v, 8);
    for (int i = 0; i < 8; ++i) b[at + i] = static_cast<char>(bits >> (8 * i) & 0xFF);
}

// Blank-padded to size.
inline void PutText(std::string& b, std::size_t at, std::size_t size, std::string_view text) {
    for (std::size_t i = 0; i < size; ++i) b[at + i] = i < text.size() ? text[i] : ' ';
}

// Offsets of the current layout.
inline constexpr std::size_t kElementAt = 10, kElementSize = 1580, kItemSize = 112;
inline constexpr std::size_t kRowAt = 31610, kRowSize = 58;
inline constexpr std::size_t kCountAt = 32770, kMotorSelectedAt = 32772;
inline constexpr std::size_t kMotorModelAt = 32774, kMotorCommentAt = 32834;
inline constexpr std::size_t kDriverModelAt = 33089, kDriverCommentAt = 33149;
inline constexpr std::size_t kInfoAt = 33229, kSelAt = 35741, kFileSize = 35763;

inline std::size_t ItemAt(int slot, int row) { return kElementAt + slot * kElementSize + row * kItemSize; }
inline std::size_t RowAt(int row) { return kRowAt + (row - 1) * kRowSize; }
