#include "base/Numeric.h"

#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <string>

#include "base/RuntimeError.h"

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Length of the longest prefix of s that reads as a number, 0 when none.
std::size_t NumberPrefix(std::string_view s) {
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    std::size_t digits = 0;
    while (i < s.size() && IsDigit(s[i])) ++i, ++digits;
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && IsDigit(s[i])) ++i, ++digits;
    }
    if (digits == 0) return 0;
    if (i < s.size() && (s[i] == 'E' || s[i] == 'e' || s[i] == 'D' || s[i] == 'd')) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        std::size_t k = j;
        while (k < s.size() && IsDigit(s[k])) ++k;
        if (k > j) i = k;
    }
    return i;
}

double ParsePrefix(std::string_view s, std::size_t len) {
    std::string text(s.substr(0, len));
    for (char& c : text)
        if (c == 'D' || c == 'd') c = 'E';
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text.c_str(), nullptr, cLocale);
}

std::string_view TrimBlanks(std::string_view s) {
    const auto first = s.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

}  // namespace

bool IsNumeric(std::string_view text) {
    const std::string_view t = TrimBlanks(text);
    return !t.empty() && NumberPrefix(t) == t.size();
}

double Val(std::string_view text) {
    std::string packed;
    for (const char c : text)
        if (c != ' ' && c != '\t' && c != '\n') packed += c;
    const std::size_t len = NumberPrefix(packed);
    return len == 0 ? 0.0 : ParsePrefix(packed, len);
}

double Round_Even(double x) { return std::nearbyint(x); }

int16_t CInt(std::string_view text) {
    if (!IsNumeric(text)) throw RuntimeError("Type mismatch");
    return CInt(Val(text));
}

int16_t CInt(double value) {
    const double r = Round_Even(value);
    if (!(r >= -32768.0 && r <= 32767.0)) throw RuntimeError("Overflow");
    return static_cast<int16_t>(r);
}

bool Same_Single(double a, double b) { return std::fabs(static_cast<float>(a - b)) < 1e-5f; }
