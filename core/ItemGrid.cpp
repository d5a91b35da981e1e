#include "core/ItemGrid.h"

#include "base/Numeric.h"
#include "core/Catalogue.h"
#include "core/Text.h"
#include "units/UnitTable.h"

namespace {

// A ratio stands as typed, a "--" as "--", an empty text stays empty, and any
// other text is shown as a number of four significant digits.
std::string Setting(const ElementItem& item) {
    const std::string_view text = item.ItemText.Str();
    if (text.find('/') != std::string_view::npos) return std::string(text);
    if (text.find("--") != std::string_view::npos) return "--";
    if (text.find_first_not_of(' ') == std::string_view::npos) return {};
    return Num_Format(Val(text), Text_HoldsLower(item.ItemName.Str(), "inertia") ? 1 : 0, 1);
}

}  // namespace

ItemGridRow Item_GridRow(const ElementRecord& element, int gridRow) {
    ItemGridRow row;
    if (gridRow < 1 || gridRow > kItemGridRows) return row;
    const ElementItem& item = element.Item[gridRow - 1];
    if (item.ItemName.Str().empty()) return row;
    row.name = item.ItemName.Str();
    if (gridRow == kItemGridRows) {
        row.unit = Unit_Name(UnitKind::Inertia, UnitTable[UnitKind::Inertia].Sel);
        row.setting = Num_Format(Val(item.ItemText.Str()), 1, 0);
    } else {
        row.unit = Unit_Name(item.UnitKind, item.UnitIndex);
        row.setting = Setting(item);
    }
    row.grey = row.setting == "--";
    return row;
}
