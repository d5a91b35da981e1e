#include "commands/PatternCommands.h"

#include <utility>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "pattern/GridText.h"
#include "units/UnitTable.h"

namespace {

void Store(PatarnTable& table, int16_t i, int col, double value) {
    const ColumnUnit u = Patarn_ColumnUnit(col, LoadMotion);
    Patarn_SetField(table, i, u.kind, u.unit, value, static_cast<int16_t>(col - 1));
}

// The columns whose text is stored: the row numbers and the torque are not.
bool StoresText(int col) { return col >= 1 && col <= 5; }

}  // namespace

void Patarn_StoreCell(PatarnTable& table, int gridRow, int col, double value) {
    if (gridRow < 2 || gridRow > kPatarnRows + 1) return;
    const auto i = static_cast<int16_t>(gridRow - 1);
    switch (col) {
        case 1:
            Store(table, i, 1, value);
            Patarn_SetField(table, i, UnitKind::Time, 1, table[i].Time - table[i - 1].Time, FieldDeltaTime);
            break;
        case 2: Store(table, i, 2, value); break;
        case 3: {
            Store(table, i, 3, value);
            double mass = 0;
            Load_Inertia(Element, MotorSelected, mass);
            Patarn_SetLoadSpeed(table, i, 0, 0, 0);
            break;
        }
        case 4:
            Store(table, i, 4, value);
            Patarn_SetSpeed(table, i);
            break;
        case 5: {
            const int16_t before = table[i].RowState;
            Store(table, i, 5, value);
            if (before == 1) {
                const double start = i == 1 ? 0 : table[i - 1].LoadSpeed;
                const double distance = i == 1 ? table[1].Position : table[i].Position - table[i - 1].Position;
                Patarn_SetLoadSpeed(table, i, 1, start, distance);
                Patarn_SetSpeed(table, i);
            } else {
                Patarn_Retime(table, static_cast<int16_t>(gridRow));
            }
            break;
        }
        default: break;
    }
}

void Patarn_Recalculate() {
    Culcurate_All();
    PatternRowCount = Patarn_CountRows(Patarn);
    Patarn_SplitZero(Patarn);
    Culcurate_All();
}

PatternEdit Patarn_AfterEdit(int gridRow, int col, const std::string& text, int16_t& escapePending) {
    if (text.empty()) return PatternEdit::Skipped;
    if (escapePending == 1) {
        escapePending = 0;
        return PatternEdit::Skipped;
    }
    const bool storing = gridRow >= 2 && gridRow <= kPatarnRows + 1;
    if (storing && StoresText(col) && !IsNumeric(text)) {
        MsgBox("Illegal input value.", "Operating Pattern", MsgIcon::Exclamation);
        return PatternEdit::Refused;
    }
    DirtyFlag = 1;
    Patarn_StoreCell(Patarn, gridRow, col, Val(text));
    Patarn_Recalculate();
    return PatternEdit::Stored;
}

bool Patarn_DeleteRows(int low, int high) {
    // The block runs from its lower to its higher row, however it was selected.
    if (low > high) std::swap(low, high);
    if (low < 2 || high < 2 || high > kPatarnRows + 1) return false;
    const int top = low - 1, n = high - low + 1;
    const double a = Patarn[top - 1].Speed, b = Patarn[top + n].Speed;
    const bool reachesEnd = top + n - 1 >= kPatarnRows;
    if (!reachesEnd && n < kPatarnRows && top != 1 && ((a > 0 && b < 0) || (a < 0 && b > 0))) {
        MsgBox("Some data cannot be deleted.", "Operating Pattern", MsgIcon::Exclamation);
        return false;
    }
    for (int r = top; r < top + n; ++r)
        if (Patarn[r].RowState == 3 && PatternRowCount > 0) --PatternRowCount;
    for (int r = top; r < top + n; ++r) Patarn_ClearRow(Patarn, static_cast<int16_t>(r));
    for (int r = top + n; r <= kPatarnRows; ++r) Patarn[r - n] = Patarn[r];
    for (int r = kPatarnRows; r >= kPatarnRows + 1 - n; --r) Patarn_ClearRow(Patarn, static_cast<int16_t>(r));
    return true;
}
