// A part of reports/mdlFileOutput.h.
#include <string>

#include "base/NumberFormat.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Text.h"
#include "reports/GeneralParam.h"
#include "reports/ResultsLine.h"
#include "reports/ResultsText.h"
#include "reports/mdlFileOutput.h"

namespace {

constexpr int kListedRows = 11;  // rows 0 to 10; 11 to 13 never print

// One parameter row; false when its name is empty, which ends the list.
bool Print_ItemRow(const ElementRecord& element, int j) {
    const ElementItem& row = element.Item[j];
    const std::string name = Text_Clean(row.ItemName.Raw());
    if (name.empty()) return false;
    const std::string itemText = "[" + std::to_string(j) + "] " + name;
    Results_Print(8, itemText, false);
    Results_Print(Results_Pad(itemText, 2), "|", false);
    const std::string_view unit = Results_UnitText(row.UnitKind);
    Results_Print(0, unit, false);
    Results_Print(Results_Pad(unit, 3), "|", false);
    // Direct inertia input shows a dash, except in the row "External torque".
    const std::string value = name != "External torque" && element.InputMode == 1 ? "-" : NumberText(row.Value);
    Results_Print(Results_Pad(value, 4), value, true);
    return true;
}

}  // namespace

void Results_Element() {
    for (int16_t i = 1; i <= ElementCount - 1; ++i) {
        const ElementRecord& element = Element[i];
        Results_Print(0, "", true);
        Results_Print(4, std::to_string(i) + " " + std::string(Type_Label(element.ElementType)), true);
        Results_Print(14, "Item          ", false);
        Results_Print(6, "|SI Units|Setting", true);
        Results_Print(8, std::string(48, '-'), true);
        for (int j = 0; j < kListedRows; ++j)
            if (!Print_ItemRow(element, j)) break;
        Results_GeneralParam(element.ElementType, i);
    }
}
