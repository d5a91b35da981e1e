// What the pattern grid and the results grid show, cell by cell, as texts in
// the single-byte code page. The windows only copy these into their cells.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/Tables.h"

// Kind and picked unit of a pattern grid column 1 to 6 under the load motion.
struct ColumnUnit {
    int16_t kind;
    int16_t unit;
};
ColumnUnit Patarn_ColumnUnit(int col, int16_t loadMotion);

// A value of a column 1 to 5, in base units, in the column's picked unit
// through the mask; -9999 too is written as a number.
std::string Patarn_ColumnValue(double value, int col, int16_t loadMotion, std::string_view mask);

// Row 1 of the pattern grid: the unit labels of columns 0 to 6.
std::array<std::string, 7> Patarn_HeaderTexts(int16_t loadMotion);

// Cell texts of records 1 to 20 (index 1..20), columns 0 to 6.
using PatarnTexts = std::array<std::array<std::string, 7>, kPatarnRows + 1>;
PatarnTexts Patarn_CellTexts(const PatarnTable& table, int16_t loadMotion);

// The results grid, rows 1 to 7.
enum class CellColour { WindowText, Red, Orange, Unchanged };

struct ResultRowTexts {
    std::string label, unit, calculated, rating, ratio;
    CellColour ratioColour = CellColour::WindowText;
};
std::array<ResultRowTexts, 7> Result_Texts(int16_t motorSelected);
