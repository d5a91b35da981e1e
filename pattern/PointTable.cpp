#include "pattern/PointTable.h"

#include <algorithm>
#include <string>

#include "base/Numeric.h"

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view s) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!s.empty() && blank(s.front())) s.remove_prefix(1);
    while (!s.empty() && blank(s.back())) s.remove_suffix(1);
    return s;
}

// A field without the blanks around it, and without the double quotes a
// spreadsheet may put around it.
std::string_view Field(std::string_view s) {
    s = Trimmed(s);
    if (s.size() >= 2 && s.front() == '"' && s.back() == '"') s = Trimmed(s.substr(1, s.size() - 2));
    return s;
}

std::vector<std::string_view> Fields(std::string_view line) {
    std::vector<std::string_view> fields;
    for (;;) {
        const std::size_t comma = line.find(',');
        fields.push_back(Field(line.substr(0, comma)));
        if (comma == std::string_view::npos) return fields;
        line.remove_prefix(comma + 1);
    }
}

std::string Where(int line) { return "Line " + std::to_string(line); }

std::string FieldCount(int line, std::size_t count) {
    return Where(line) + " holds " + std::to_string(count) + (count == 1 ? " field" : " fields") +
           ": a point table has two columns, time,speed or interval,speed.";
}

// Letters of the plain Latin alphabet, whatever the machine's locale.
bool Letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool SameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return Lower(x) == Lower(y); });
}

// A column of the header: its name, and the unit in parentheses behind it.
bool Column(std::string_view field, std::string_view& name, std::string& unit) {
    const std::size_t open = field.find('(');
    name = Trimmed(field.substr(0, open));
    if (open == std::string_view::npos) return true;
    if (field.back() != ')') return false;
    unit = std::string(Trimmed(field.substr(open + 1, field.size() - open - 2)));
    return !unit.empty();
}

bool Header(const std::vector<std::string_view>& fields, PointTable& table) {
    std::string_view first, second;
    if (!Column(fields[0], first, table.timeUnit) || !Column(fields[1], second, table.speedUnit)) return false;
    if (!SameName(second, kPointSpeedName)) return false;
    if (SameName(first, kPointTimeName)) table.columns = PointColumns::Time;
    else if (SameName(first, kPointIntervalName)) table.columns = PointColumns::Interval;
    else return false;
    return true;
}

// A header names its columns in words; a line whose first field is a
// number, or no word at all, is a line of values.
bool Names(std::string_view field) {
    return !IsNumeric(field) && std::ranges::any_of(field, Letter);
}

}  // namespace

std::string PointTable_Parse(std::string_view bytes, PointTable& table) {
    table = PointTable{};
    if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
    bool first = true;
    for (int number = 1; !bytes.empty(); ++number) {
        const std::size_t end = bytes.find_first_of("\r\n");
        const std::string_view line = bytes.substr(0, end);
        if (end == std::string_view::npos) bytes = {};
        else bytes.remove_prefix(end + (bytes.substr(end).starts_with("\r\n") ? 2 : 1));
        if (Trimmed(line).empty()) continue;
        const std::vector<std::string_view> fields = Fields(line);
        if (fields.size() != 2) return FieldCount(number, fields.size());
        const bool header = first && Names(fields[0]);
        first = false;
        if (header) {
            if (!Header(fields, table))
                return Where(number) + " does not name the columns time,speed or interval,speed.";
            continue;
        }
        table.lines.push_back({number, std::string(fields[0]), std::string(fields[1])});
    }
    return "";
}
