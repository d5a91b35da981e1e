#include "core/ItemEdit.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "base/MsgBox.h"
#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "core/Text.h"
#include "units/UnitTable.h"

namespace {

constexpr std::array<std::pair<std::string_view, double>, 5> kMaterials = {
    {{"Iron", 7.8}, {"Aluminium", 2.7}, {"Cooper", 8.9}, {"Brass", 8.4}, {"Bronze", 8.8}}};

std::string Lower(std::string_view text) {
    std::string s(text);
    std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

double Diameter(int16_t element, std::string_view part) {
    if (element < 0 || element >= kElementSlots) return 0;
    for (const ElementItem& item : Element[element].Item)
        if (Text_HoldsLower(item.ItemName.Str(), part)) return Val(item.ItemText.Str());
    return 0;
}

// Grid rows where a zero would divide the reduction, by type.
bool ZeroRefused(int16_t type, int gridRow) {
    switch (type) {
        case 1: case 13: case 14: case 15: case 16: case 17: case 18: case 21: return gridRow == 1;
        case 2: case 3: case 4: case 11: case 12: return gridRow == 1 || gridRow == 4;
        case 41: return gridRow == 3 || gridRow == 5;
        case 42: return gridRow == 3 || gridRow == 5 || gridRow == 8;
        default: return false;
    }
}

// "a/b" with a number on each side of the first slash.
bool IsRatio(std::string_view t) {
    const auto slash = t.find('/');
    if (slash == std::string_view::npos || slash == 0 || slash == t.size() - 1) return false;
    return IsNumeric(t.substr(0, slash)) && IsNumeric(t.substr(slash + 1));
}

// Four significant digits by dropping the fifth of "#.0000E+0": the text keeps
// its first five characters and those from the seventh on.
std::string FourDigits(std::string_view t) {
    const std::string five = Format_Mask(Val(t), kMaskSci5);
    const std::string cut = five.size() > 6 ? five.substr(0, 5) + five.substr(6) : five;
    return NumberText(Val(cut));
}

bool Refuse() {
    MsgBox("Illegal input value.", "Input Component Settings", MsgIcon::Exclamation);
    return false;
}

}  // namespace

double Material_Density(std::string_view name) {
    for (const auto& [material, density] : kMaterials)
        if (material == name) return density;
    return -1;
}

double Diameter_Inner(int16_t element) { return Diameter(element, "inner"); }
double Diameter_Outer(int16_t element) { return Diameter(element, "outer"); }

bool Item_IsDensityRow(const ElementItem& item) {
    return item.UnitKind != kUnitNotUsed && Unit_Name(item.UnitKind, item.UnitIndex) == "g/cm\xB3";
}

bool ItemEdit_KeyAllowed(char32_t key) {
    if (key >= U'0' && key <= U'9') return true;
    switch (key) {
        case 8: case U',': case U'.': case U'/': case U'e': case U'E': case U'+': case U'-': return true;
        default: return false;
    }
}

bool ItemEdit_MayOpen(const ElementRecord& element, int gridRow, std::string_view cellText) {
    if (gridRow < 1 || gridRow > kItemRows) return false;
    if (element.Item[gridRow - 1].ItemName.Str().empty()) return false;
    return Trim(cellText) != "--";
}

bool ValidateEdit(int16_t element, int gridRow, std::string& text) {
    if (element < 0 || element >= kElementSlots || gridRow < 1 || gridRow > kItemRows) return Refuse();
    const ElementRecord& e = Element[element];
    const ElementItem& item = e.Item[gridRow - 1];
    const std::string name = Lower(Trim(item.ItemName.Str()));
    std::string t = text;

    if (Item_IsDensityRow(item) && !IsNumeric(t)) {
        const double density = Material_Density(t);
        if (density == -1) return Refuse();
        t = NumberText(density);
    } else if (name.find("reduction ratio") != std::string::npos) {
        if (t.empty() || t.find('-') != std::string::npos) return Refuse();
        if (!IsNumeric(t)) {
            if (!IsRatio(t)) return Refuse();
            return true;  // a ratio stays as typed
        }
    } else if (!IsNumeric(t)) {
        return Refuse();
    }

    const double v = Val(t);
    if (v < 0 && Trim(item.ItemName.Str()) != "Angle of incline" && item.UnitKind != 9 && item.UnitKind != 10)
        return Refuse();
    if (v == 0 && ZeroRefused(e.ElementType, gridRow)) return Refuse();
    if (item.UnitKind == UnitKind::Fixed && item.UnitIndex == 1 && (v > 100 || v == 0)) return Refuse();
    if (name.find("inner diameter") != std::string::npos && !(v < Diameter_Outer(element))) return Refuse();
    if (name.find("outer diameter") != std::string::npos && !(v > Diameter_Inner(element))) return Refuse();

    text = FourDigits(t);
    return true;
}

void ItemEdit_Store(int16_t element, int gridRow, const std::string& text, bool directInertia) {
    if (element < 0 || element >= kElementSlots || gridRow < 1 || gridRow > kItemRows) return;
    DirtyFlag = 1;
    ElementRecord& e = Element[element];
    ElementItem& item = e.Item[gridRow - 1];
    double v = Val(text);
    if (directInertia && Text_HoldsLower(item.ItemName.Str(), "inertia")) {
        e.DirectValue = ToS(UnitKind::Inertia, UnitTable[UnitKind::Inertia].Sel, v);
        return;
    }
    const auto slash = text.find('/');
    if (slash != std::string::npos) v = Val(std::string_view(text).substr(0, slash)) / Val(std::string_view(text).substr(slash + 1));
    item.ItemText = text;
    item.Value = ToS(item.UnitKind, item.UnitIndex, v);
}
