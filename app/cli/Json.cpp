#include "app/cli/Json.h"

#include <charconv>
#include <cmath>
#include <cstdio>

std::string Json_String(std::string_view utf8) {
    std::string out = "\"";
    for (const char c : utf8) {
        switch (c) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\n': out += "\\n"; break;
            case '\r': out += "\\r"; break;
            case '\t': out += "\\t"; break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    char buf[8];
                    std::snprintf(buf, sizeof buf, "\\u%04x", static_cast<unsigned char>(c));
                    out += buf;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

std::string Json_Number(double x) {
    if (!std::isfinite(x)) return "null";
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, 17);
    return std::string(buf, res.ptr);
}
