#include "reports/CommentBox.h"

#include <algorithm>

namespace {

constexpr char CR = '\r';
constexpr char LF = '\n';
constexpr int16_t kKeyBackspace = 8;
constexpr int16_t kKeyEnter = 13;

// The text from the 1-based position start on, count characters or the rest;
// nothing when start lies behind the end.
std::string Mid(const std::string& text, int start, std::size_t count = std::string::npos) {
    return text.substr(std::min<std::size_t>(start - 1, text.size()), count);
}

bool IsLineEnd(const std::string& character) { return character == "\r" || character == "\n"; }

}  // namespace

void Box_Init(int16_t width, int16_t lines) {
    if (width < 0 || lines < 0) {
        BoxWidth = BoxLines = 0;
        return;
    }
    const std::string plain = Box_Unwrap();
    BoxWidth = width;
    BoxLines = lines;
    Box_Wrap(plain);
}

std::string Box_Wrap(const std::string& plain) {
    std::string wrapped;
    int counter = 0;
    for (const char c : plain) {
        if (c == CR || c == LF) {
            counter = 0;
        } else if (++counter > BoxWidth) {
            wrapped += "\r\r";
            counter = 1;
        }
        wrapped += c;
    }
    BoxText = wrapped;
    return wrapped;
}

std::string Box_Unwrap() {
    std::string plain;
    for (const char c : BoxText) {
        if (c == LF)
            plain += "\r\n";
        else if (c != CR)
            plain += c;
    }
    return plain;
}

std::string Box_Show(const std::string& internal) {
    std::string shown;
    for (const char c : internal) shown += c == CR && !shown.empty() && shown.back() == CR ? LF : c;
    return shown;
}

bool Box_KeyAllowed(int position, int16_t key) {
    if (key == kKeyBackspace) return true;
    const std::string inserted = key == kKeyEnter ? "\r\n" : std::string(1, static_cast<char>(key));
    const std::string kept = BoxText;
    BoxText = BoxText.substr(0, position + 1) + inserted + Mid(BoxText, position + 1);
    std::vector<int> lengths;
    const int count = Box_LineLengths(Box_Wrap(Box_Unwrap()), lengths);
    BoxText = kept;
    return count <= BoxLines || (count == BoxLines + 1 && lengths[count - 1] == 0);
}

std::string Box_Change(const std::string& text, int& shift) {
    int d = 0;
    const int p = Box_FirstDifference(text, BoxText, d);
    if (p != 0) {
        const std::string taken = d < 0 ? "" : Mid(text, p, d == 0 ? 1 : d);
        const int rest = d == 0 ? p + 1 : d > 0 ? p : p - d;
        BoxText = BoxText.substr(0, p - 1) + taken + Mid(BoxText, rest);
    }
    const int length = static_cast<int>(BoxText.size());
    Box_Wrap(Box_Unwrap());
    shift = static_cast<int>(BoxText.size()) - length;
    return Box_Show(BoxText);
}

int Box_LineLengths(const std::string& text, std::vector<int>& lengths) {
    lengths.assign(5, 0);
    int count = 1;
    int length = 0;
    const auto store = [&] {
        if (count > static_cast<int>(lengths.size())) lengths.resize(lengths.size() + 10, 0);
        lengths[count - 1] = length;
    };
    char previous = '\0';
    for (const char c : text) {
        if (c == CR && previous != CR) {
            store();
            ++count;
        } else if (c == LF) {
            length = 0;
        } else if (c != CR) {
            ++length;
        }
        previous = c;
    }
    store();
    return count;
}

int Box_FirstDifference(const std::string& first, const std::string& second, int& difference) {
    difference = 0;
    if (first == second) return 0;
    difference = static_cast<int>(first.size()) - static_cast<int>(second.size());
    const int longer = static_cast<int>(std::max(first.size(), second.size()));
    for (int at = 1; at <= longer; ++at) {
        const std::string a = Mid(first, at, 1);
        const std::string b = Mid(second, at, 1);
        if (a != b && !(IsLineEnd(a) && IsLineEnd(b))) return at;
    }
    return 0;
}
