#include "core/Text.h"

#include <algorithm>
#include <cctype>

void Path_Split(std::string_view path, std::string& dir, std::string& name) {
    const auto cut = path.find_last_of("\\/");
    if (cut == std::string_view::npos) {
        dir.clear();
        name = std::string(path);
        return;
    }
    dir = std::string(path.substr(0, cut));
    name = std::string(path.substr(cut + 1));
}

std::string Text_Clean(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool Text_HoldsLower(std::string_view text, std::string_view part) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower.find(part) != std::string::npos;
}
