#include "commands/PointRows.h"

#include <cmath>

#include "base/Cp1252.h"
#include "base/Numeric.h"
#include "commands/PatternCommands.h"
#include "core/PatarnRows.h"
#include "pattern/GridText.h"
#include "pattern/PatarnCell.h"

namespace {

constexpr const char* kRowsTitle = "Operating Pattern";
// A unit named in the header is quoted in a message up to this length.
constexpr std::size_t kQuotedUnit = 16;

PointRefusal Illegal(int line, const std::string& why) {
    return {"Illegal input value.\r\nLine " + std::to_string(line) + ": " + why, kRowsTitle};
}

// The text as the cell of column col takes it: a number cut to the column's
// precision. False when the text is no number.
bool Typed(int col, const std::string& text, double& value) {
    if (!IsNumeric(text) || !std::isfinite(Val(text))) return false;
    value = Val(Patarn_Trim(col, text));
    return true;
}

// The unit the header names for column col, when it is not the picked one.
bool OtherUnit(const std::string& named, int col, std::string& picked) {
    picked = Patarn_HeaderTexts(LoadMotion)[col];
    return !named.empty() && named != picked && named != Cp1252_ToUtf8(picked);
}

PointRefusal UnitRefusal(const std::string& what, const std::string& named, const std::string& picked) {
    const std::string quoted = Cp1252_ToUtf8(Utf8_ToCp1252(named.substr(0, kQuotedUnit)));
    return {"The " + what + " of the point table are in " + quoted + ", the picked unit is " +
                Cp1252_ToUtf8(picked) + ": pick " + quoted + " under Units first, or give them in " +
                Cp1252_ToUtf8(picked) + ".",
            kImportTitle};
}

PointRefusal TooMany(int rows, int splits) {
    std::string text = "The operating pattern holds at most " + std::to_string(kPatarnRows) +
                       " rows; the point table gives " + std::to_string(rows);
    if (splits > 0) text += ", and " + std::to_string(splits) + " more where the speed changes sign within a row";
    return {text + ".", kRowsTitle};
}

}  // namespace

PointRefusal PointTable_Rows(const PointTable& table, PatarnTable& rows) {
    std::string picked;
    if (OtherUnit(table.timeUnit, kGridTimeColumn, picked)) return UnitRefusal("times", table.timeUnit, picked);
    if (OtherUnit(table.speedUnit, kGridSpeedColumn, picked)) return UnitRefusal("speeds", table.speedUnit, picked);
    const int col = PointTable_GridColumn(table.columns);
    const std::string name = col == kGridTimeColumn ? "time" : "interval";
    rows = PatarnTable{};
    rows[0].RowState = 3;
    int n = 0;
    double above = 0;
    for (const PointLine& p : table.lines) {
        double first = 0, speed = 0;
        if (!Typed(col, p.first, first)) return Illegal(p.line, "the " + name + " is no number.");
        if (!Typed(kGridSpeedColumn, p.speed, speed)) return Illegal(p.line, "the speed is no number.");
        const bool startPoint = &p == &table.lines.front() && col == kGridTimeColumn && first == 0 && speed == 0;
        if (startPoint) continue;
        if (!Patarn_ValueAllowed(col, first, above))
            return Illegal(p.line, col == kGridTimeColumn ? "the time must be greater than 0 and than the time before it."
                                                         : "the interval must be greater than 0.");
        above = first;
        if (++n > kPatarnRows) continue;  // counted for the message, never stored
        Patarn_StoreCell(rows, n + 1, col, first);
        Patarn_StoreCell(rows, n + 1, kGridSpeedColumn, speed);
    }
    if (n == 0) return {"The point table holds no rows.", kImportTitle};
    if (n > kPatarnRows) return TooMany(n, 0);
    Patarn_UpdateTimes(rows);
    int splits = 0;
    for (int16_t i = 1; i < n; ++i) splits += Patarn_SignChange(rows, i) ? 1 : 0;
    if (n + splits > kPatarnRows) return TooMany(n, splits);
    return {};
}
