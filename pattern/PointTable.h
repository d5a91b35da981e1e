// A point table: the operating pattern as comma-separated text, one row of
// the pattern a line, in the picked units of time and motor speed. The
// reader takes bytes from outside: a byte-order mark, Windows and old Mac
// line ends, blank lines, blanks around a field and a field in double quotes
// are all read; anything else that is not two fields a line is told, with
// its line number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the first column holds: the time at the end of each row, counted
// from the start, or the length of each row.
enum class PointColumns { Time, Interval };

// The columns of the pattern grid that a point table's columns stand for.
inline constexpr int kGridTimeColumn = 1, kGridIntervalColumn = 2, kGridSpeedColumn = 3;
inline constexpr int PointTable_GridColumn(PointColumns columns) {
    return columns == PointColumns::Time ? kGridTimeColumn : kGridIntervalColumn;
}

// The column names of the header line, matched whatever their case.
inline constexpr std::string_view kPointTimeName = "time";
inline constexpr std::string_view kPointIntervalName = "interval";
inline constexpr std::string_view kPointSpeedName = "speed";

// One line of values: the time or interval and the speed, as written, with
// the blanks and quotes around them taken off.
struct PointLine {
    int line = 0;  // counted from 1 in the file
    std::string first, speed;
};

struct PointTable {
    PointColumns columns = PointColumns::Time;
    // The units the header names in parentheses, as written; empty where it
    // names none or there is no header.
    std::string timeUnit, speedUnit;
    std::vector<PointLine> lines;
};

// The longest file read as a point table: 20 rows need far less, so more is
// no point table.
inline constexpr std::size_t kPointTableLimit = 64 * 1024;

// Reads the text into table. The first line that is not blank is a header
// when its first field is no number: "time,speed" or "interval,speed", each
// name optionally followed by its unit in parentheses ("time (s)"); without
// a header the columns are time and speed. Returns "" when the text is a
// point table, else the reason, a sentence that names the line.
std::string PointTable_Parse(std::string_view bytes, PointTable& table);
