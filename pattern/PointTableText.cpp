#include "pattern/PointTableText.h"

#include "base/Cp1252.h"
#include "base/NumberFormat.h"
#include "core/PatarnRows.h"
#include "pattern/GridText.h"

namespace {

std::string Heading(std::string_view name, int col) {
    return std::string(name) + " (" + Cp1252_ToUtf8(Patarn_HeaderTexts(LoadMotion)[col]) + ")";
}

std::string Line(double first, int col, double speed) {
    return Patarn_ColumnValue(first, col, LoadMotion, kMask3) + "," +
           Patarn_ColumnValue(speed, kGridSpeedColumn, LoadMotion, kMask1) + "\n";
}

}  // namespace

std::string PointTable_Text(const PatarnTable& table, PointColumns columns) {
    const bool times = columns == PointColumns::Time;
    const int col = PointTable_GridColumn(columns);
    std::string text = Heading(times ? kPointTimeName : kPointIntervalName, col) + "," +
                       Heading(kPointSpeedName, kGridSpeedColumn) + "\n";
    if (times) text += Line(0, col, 0);
    const int16_t n = Patarn_CountRows(table);
    for (int16_t r = 1; r <= n; ++r) text += Line(times ? table[r].Time : table[r].DeltaTime, col, table[r].Speed);
    return text;
}
