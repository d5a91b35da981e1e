#include "pattern/PatarnCell.h"

#include <cmath>

#include "base/MsgBox.h"
#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "core/Tables.h"

namespace {

struct Precision {
    std::string_view mask;
    double factor;
};

// Load speed is tested with two decimals and cut at one, as the grid always did.
Precision ColumnPrecision(int col) {
    switch (col) {
        case 1:
        case 2: return {kMask3, 1000};
        case 3: return {kMask1, 10};
        case 4: return {kMask2, 10};
        default: return {kMask2, 100};
    }
}

bool PositionAllowed(int gridRow, double value, const std::string& cellAbove) {
    Patarn[0].RowState = 3;
    const int i = gridRow - 1;
    if (Patarn[i].RowState == 0 || Patarn[i - 1].RowState != 3) return false;
    if (Patarn[i].RowState == 1) return true;
    const double p = gridRow == 2 ? 0 : Val(cellAbove);
    const double v1 = Patarn[i - 1].Speed, v2 = Patarn[i].Speed;
    if (v1 == 0 && v2 == 0) return value == p;
    return v1 + v2 >= 0 ? value > p : value < p;
}

}  // namespace

bool Patarn_MayEdit(int gridRow, int col) {
    if (col == 6) return false;
    if (col != 5) return true;
    if (gridRow == 2) return true;
    const int i = gridRow - 1;
    return i >= 1 && i <= kPatarnRows && Patarn[i].RowState != 0 && Patarn[i - 1].RowState == 3;
}

bool Patarn_KeyAllowed(int key) {
    return (key >= '0' && key <= '9') || key == 8 || key == '-' || key == '.' || key == 13 || key == ',';
}

std::string Patarn_Trim(int col, const std::string& text) {
    const Precision k = ColumnPrecision(col);
    const double value = Val(text);
    if (value == Val(Format_Mask(value, k.mask))) return Format_Mask(value, k.mask);
    return Format_Mask(std::trunc(value * k.factor) / k.factor, k.mask);
}

bool Patarn_ValueAllowed(int col, double value, double above) {
    switch (col) {
        case 1: return value > 0 && value > above;
        case 2: return value > 0;
        default: return true;
    }
}

CellCheck Patarn_Validate(int gridRow, int col, const std::string& text, const std::string& cellAbove,
                          int16_t escapePending) {
    CellCheck check{false, text};
    if (text.empty() || !IsNumeric(text)) return check;
    if (escapePending == 1) return {true, text};
    if (gridRow < 2 || gridRow > kPatarnRows + 1) return {true, text};
    check.text = Patarn_Trim(col, text);
    const double value = Val(check.text);
    const int i = gridRow - 1;
    bool ok = true;
    switch (col) {
        case 1:
            if (gridRow > 2 && (Patarn[i - 1].RowState == 0 || Patarn[i - 1].RowState == 2)) return {true, check.text};
            ok = Patarn_ValueAllowed(col, value, gridRow > 2 ? Val(cellAbove) : 0);
            break;
        case 5: ok = PositionAllowed(gridRow, value, cellAbove); break;
        default: ok = Patarn_ValueAllowed(col, value, 0); break;
    }
    if (!ok) {
        MsgBox("Illegal input value.", "Operating Pattern", MsgIcon::Exclamation);
        check.cancel = true;
    }
    return check;
}
