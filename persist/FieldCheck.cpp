#include "persist/FieldCheck.h"

#include "core/Catalogue.h"
#include "units/UnitTable.h"

namespace {

// Kinds 0 to 10 convert through their unit table; 11 to 15 are fixed labels.
constexpr int16_t kLastLabelKind = 15;

bool Item_Valid(const ElementItem& item) {
    if (item.UnitKind == kUnitNotUsed) return true;
    if (item.UnitKind >= kUnitCategories) return item.UnitKind <= kLastLabelKind;
    return Sel_Valid(item.UnitKind, item.UnitIndex);
}

}  // namespace

bool Element_Valid(int slot, const ElementRecord& element) {
    const int16_t type = element.ElementType;
    const bool typeOk = slot == 0 ? type == kTypeMotor
                                  : type == kTypeEmpty || (type != kTypeMotor && Type_Known(type));
    if (!typeOk || element.InputMode < 0 || element.InputMode > 2) return false;
    for (const ElementItem& item : element.Item)
        if (!Item_Valid(item)) return false;
    return true;
}

bool Row_Valid(const PatarnRow& row) { return row.RowState >= 0 && row.RowState <= 3; }

bool Count_Valid(int16_t count) { return count >= 1 && count <= kMaxElements; }

bool MotorSelected_Valid(int16_t selected) { return selected == 0 || selected == 1; }

bool Sel_Valid(int kind, int16_t sel) { return sel >= 0 && sel < Unit_Count(kind); }
