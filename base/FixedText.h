// A fixed-width text of N single-byte characters in the Western code page,
// left-justified and padded with blanks, as the records and files hold it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/Cp1252.h"

template <std::size_t N>
class FixedText {
public:
    FixedText() { bytes_.fill(' '); }
    explicit FixedText(std::string_view cp1252) { Set(cp1252); }
    FixedText& operator=(std::string_view cp1252) {
        Set(cp1252);
        return *this;
    }

    // Stores the bytes, cut to N or padded with blanks.
    // The source may be a view of these very bytes.
    void Set(std::string_view cp1252) {
        std::array<char, N> fresh;
        fresh.fill(' ');
        std::copy_n(cp1252.begin(), std::min(N, cp1252.size()), fresh.begin());
        bytes_ = fresh;
    }
    void SetUtf8(std::string_view utf8) { Set(Utf8_ToCp1252(utf8)); }

    // All N bytes, padding included.
    std::string_view Raw() const { return {bytes_.data(), N}; }
    // The bytes without the trailing blanks.
    std::string_view Str() const {
        std::string_view s = Raw();
        const auto end = s.find_last_not_of(' ');
        return s.substr(0, end == std::string_view::npos ? 0 : end + 1);
    }
    std::string Utf8() const { return Cp1252_ToUtf8(Str()); }

    char* Data() { return bytes_.data(); }
    static constexpr std::size_t Size() { return N; }

    bool operator==(const FixedText&) const = default;

private:
    std::array<char, N> bytes_;
};
