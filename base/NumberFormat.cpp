#include "base/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

// A decimal number: digits d0 d1 d2 ... with d0 at the power exp10.
struct Decimal {
    bool negative = false;
    std::string digits;  // no leading zeros; "0" for zero
    int exp10 = 0;

    bool IsZero() const { return digits == "0"; }
    int DigitAt(int power) const {
        const int i = exp10 - power;
        return (i >= 0 && i < static_cast<int>(digits.size())) ? digits[i] - '0' : 0;
    }
};

// The value taken to 15 significant digits.
Decimal ToDecimal(double value) {
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::scientific, 14);
    std::string_view s(buf, res.ptr - buf);
    Decimal d;
    if (s.front() == '-') d.negative = true, s.remove_prefix(1);
    const auto e = s.find('e');
    for (const char c : s.substr(0, e))
        if (c != '.') d.digits += c;
    d.exp10 = std::atoi(std::string(s.substr(e + 1)).c_str());
    d.digits.erase(d.digits.find_last_not_of('0') + 1);
    if (d.digits.empty()) d.digits = "0", d.exp10 = 0;
    return d;
}

// Rounds half away from zero so that no digit below the power `last` remains.
void RoundAt(Decimal& d, int last) {
    if (d.IsZero()) return;
    const int keep = d.exp10 - last + 1;
    if (keep >= static_cast<int>(d.digits.size())) return;
    if (keep < 0) {
        d.digits = "0", d.exp10 = 0;
        return;
    }
    const bool up = d.digits[keep] >= '5';
    d.digits.resize(keep);
    if (up) {
        int i = keep - 1;
        while (i >= 0 && d.digits[i] == '9') d.digits[i--] = '0';
        if (i < 0) {
            d.digits.insert(d.digits.begin(), '1');
            ++d.exp10;
        } else {
            ++d.digits[i];
        }
    }
    d.digits.erase(d.digits.find_last_not_of('0') + 1);
    if (d.digits.empty()) d.digits = "0", d.exp10 = 0;
}

struct Mask {
    bool leadingZero = true;  // '0' before the point, '#' leaves a zero away
    int required = 0;         // decimals always shown
    int optional = 0;         // decimals shown when not zero
    bool scientific = false;
    int expDigits = 1;
};

Mask ParseMask(std::string_view m) {
    Mask k;
    k.leadingZero = !m.empty() && m.front() == '0';
    const auto point = m.find('.');
    const auto e = m.find('E');
    if (point != std::string_view::npos) {
        for (const char c : m.substr(point + 1, e == std::string_view::npos ? m.npos : e - point - 1))
            (c == '0' ? k.required : k.optional)++;
    }
    if (e != std::string_view::npos) {
        k.scientific = true;
        k.expDigits = static_cast<int>(std::count(m.begin() + e, m.end(), '0'));
    }
    return k;
}

// The decimals from the power -1 down to -count, trailing zeros beyond the
// required ones left away.
std::string Decimals(const Decimal& d, int required, int count, int shift) {
    std::string out;
    for (int p = -1; p >= -count; --p) out += static_cast<char>('0' + d.DigitAt(p + shift));
    while (static_cast<int>(out.size()) > required && out.back() == '0') out.pop_back();
    return out;
}

std::string FormatFixed(Decimal d, const Mask& k) {
    const int count = k.required + k.optional;
    RoundAt(d, -count);
    std::string whole;
    for (int p = std::max(d.exp10, 0); p >= 0; --p) whole += static_cast<char>('0' + d.DigitAt(p));
    if (whole == "0" && !k.leadingZero) whole.clear();
    const std::string frac = Decimals(d, k.required, count, 0);
    std::string out = (d.negative && !d.IsZero()) ? "-" : "";
    out += whole;
    if (!frac.empty() || k.required > 0) out.append(1, '.').append(frac);
    return out;
}

std::string FormatScientific(Decimal d, const Mask& k) {
    const int count = k.required + k.optional;
    RoundAt(d, d.exp10 - count);
    const int exponent = d.IsZero() ? 0 : d.exp10;
    std::string out = (d.negative && !d.IsZero()) ? "-" : "";
    if (!d.IsZero() || k.leadingZero) out += static_cast<char>('0' + d.DigitAt(d.exp10));
    const std::string frac = Decimals(d, k.required, count, d.exp10);
    if (!frac.empty() || k.required > 0) out.append(1, '.').append(frac);
    std::string e = std::to_string(std::abs(exponent));
    if (static_cast<int>(e.size()) < k.expDigits) e.insert(0, k.expDigits - e.size(), '0');
    out += exponent < 0 ? "E-" : "E+";
    return out + e;
}

}  // namespace

std::string Format_Mask(double value, std::string_view mask) {
    if (!std::isfinite(value)) return NumberText(value);
    const Mask k = ParseMask(mask);
    const Decimal d = ToDecimal(value);
    return k.scientific ? FormatScientific(d, k) : FormatFixed(d, k);
}

std::string NumberText(double x) {
    if (x == 0.0) return "0";
    if (std::isnan(x)) return "NaN";
    if (std::isinf(x)) return x > 0 ? "Infinity" : "-Infinity";
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, 15);
    std::string out(buf, res.ptr);
    for (char& c : out)
        if (c == 'e') c = 'E';
    return out;
}
