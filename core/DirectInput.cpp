#include "core/DirectInput.h"

#include <string>

#include "base/NumberFormat.h"
#include "core/Catalogue.h"
#include "core/Text.h"
#include "units/UnitTable.h"

namespace {

bool Greyed(int16_t type, int16_t mode, std::string_view name) {
    switch (type) {
        case 2: case 3: case 4: case 7: case 13: case 14: case 15: case 34:
            return Text_HoldsLower(name, "thickness") || Text_HoldsLower(name, "density");
        case 8: return Text_HoldsLower(name, "width b") || Text_HoldsLower(name, "density");
        case 5:
            if (mode == 1) return !Text_HoldsLower(name, "external torque");
            return Text_HoldsLower(name, "length") || Text_HoldsLower(name, "density");
        default: return false;
    }
}

// Every row of the dimensions shows its Value in its unit again.
void Rows_Restore(ElementRecord& element) {
    for (int row = 0; row <= 12; ++row) {
        ElementItem& item = element.Item[row];
        item.ItemText = NumberText(FromS(item.UnitKind, item.UnitIndex, item.Value));
    }
}

void Direct(ElementRecord& element, int16_t mode, bool on) {
    if (on) {
        element.InputMode = mode;
        Rows_Grey(element);
    } else if (element.InputMode == mode) {
        element.InputMode = 0;
        Rows_Restore(element);
    }
}

}  // namespace

bool Check_Set(int16_t type, int16_t mode, DirectChecks& checks) {
    if (type == 5) {
        checks.value1 = mode == 1;
        checks.value2 = mode == 2;
        checks.enabled1 = mode != 2;
        checks.enabled2 = mode != 1;
        return true;
    }
    if (Item_HasMassInput(type) == 1) {
        if (mode == 1) return false;
        checks.value1 = false;
        checks.value2 = mode == 2;
        checks.enabled1 = false;
        checks.enabled2 = true;
        return true;
    }
    checks = DirectChecks{};
    return true;
}

void Rows_Grey(ElementRecord& element) {
    const int16_t type = element.ElementType;
    const int count = (type >= 0 && type < static_cast<int>(ElementItemCount.size())) ? ElementItemCount[type] : 0;
    for (int r = 1; r <= count && r <= kItemRows; ++r) {
        ElementItem& item = element.Item[r - 1];
        if (Greyed(type, element.InputMode, item.ItemName.Str())) item.ItemText = "--";
    }
    if (type == 5 && element.InputMode == 1) element.Item[12].ItemText = "--";
}

void Direct_Inertia(ElementRecord& element, bool on) {
    Direct(element, 1, on);
    element.DirectValue = element.Item[13].Value;
}

void Direct_Mass(ElementRecord& element, bool on) { Direct(element, 2, on); }
