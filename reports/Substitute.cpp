#include "reports/Substitute.h"

#include <cctype>
#include <strings.h>

#include "base/NumberFormat.h"
#include "reports/ParamValue.h"
#include "reports/ResultsLine.h"
#include "units/Constants.h"

namespace {

constexpr auto npos = std::string::npos;

std::size_t FindNoCase(const std::string& text, std::string_view token, std::size_t start) {
    for (std::size_t at = start; at + token.size() <= text.size(); ++at)
        if (strncasecmp(text.data() + at, token.data(), token.size()) == 0) return at;
    return npos;
}

// The first occurrence only; the text goes on `skip` bytes behind the find.
std::string ReplaceFirstSkip(const std::string& text, std::string_view token, const std::string& by,
                             std::size_t skip) {
    const std::size_t at = FindNoCase(text, token, 0);
    if (at == npos) return text;
    return text.substr(0, at) + by + text.substr(at + skip);
}

std::string ReplaceFirst(const std::string& text, std::string_view token, const std::string& by) {
    return ReplaceFirstSkip(text, token, by, token.size());
}

std::string ReplaceAll(const std::string& text, std::string_view token, const std::string& by) {
    std::string out;
    std::size_t start = 0;
    for (std::size_t at; (at = FindNoCase(text, token, start)) != npos; start = at + token.size())
        out += text.substr(start, at - start) + by;
    return out + text.substr(start);
}

// "[" and one digit n: the Value of row n. The row number is that one
// character, so "[10]" reads row 1 and leaves "]" behind. A character that
// is no digit is a logged error, and that "[" gets no value.
std::string ReplaceRows(const std::string& text, int16_t index) {
    std::string out;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find('[', start)) != npos; start = at + 3) {
        out += text.substr(start, at - start);
        const char digit = at + 1 < text.size() ? text[at + 1] : '\0';
        if (std::isdigit(static_cast<unsigned char>(digit)))
            out += NumberText(Element[index].Item[digit - '0'].Value);
        else
            Results_LogError(kErrTypeMismatch);
    }
    return start < text.size() ? out + text.substr(start) : out;
}

}  // namespace

void Results_Substitute(std::string& formula, int16_t type, int16_t index, const ParamRecord& param) {
    std::string text = ReplaceFirst(formula, "p", NumberText(kPi));
    text = ReplaceFirst(text, "G", NumberText(kGravity));
    text = ReplaceAll(text, "m1", NumberText(Results_M1(type, param)));
    text = ReplaceFirst(text, "m2", NumberText(param.m2));
    text = ReplaceFirst(text, "m3", NumberText(param.m3));
    text = ReplaceFirst(text, "inert1", NumberText(param.inert1));
    // The text goes on five bytes behind "Motor mass", so " mass" stays behind the number.
    text = ReplaceFirstSkip(text, "Motor mass", NumberText(Results_MotorMass()), 5);
    formula = ReplaceRows(text, index);
}
