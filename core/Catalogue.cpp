#include "core/Catalogue.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>

#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "units/Constants.h"
#include "units/UnitTable.h"

namespace {

constexpr int8_t kPicked = -1;  // the unit picked for the category

struct RowDef {
    int8_t row;
    std::string_view name;
    int16_t kind;
    int8_t unit;  // kPicked, or a fixed index
    double value;
};

struct TypeDef {
    int16_t code;
    std::string_view label;
    std::string_view bitmap;
    int16_t count;  // rows the user enters
    std::initializer_list<RowDef> rows;
};

namespace K = UnitKind;

// Fixed indexes of UnitKind::Fixed.
constexpr int8_t kDash = 0, kPercent = 1, kOutIn = 2, kNoUnit = 3;

const std::initializer_list<TypeDef>& Types() {
    static const std::initializer_list<TypeDef> types = {
        {1, "Reduct. gear", "\\BMP_data\\rotoro1.bmp", 3,
         {{0, "Reduction ratio", K::Fixed, kOutIn, 1}, {1, "Trans. efficiency", K::Fixed, kPercent, 1},
          {2, "Input axis inertia", K::Inertia, kPicked, 0}}},
        {2, "Gear", "\\BMP_data\\rotoro2.bmp", 7,
         {{0, "Input gear dia.", K::Length, kPicked, 0.02}, {1, "In gear thickness", K::Length, kPicked, 0.01},
          {2, "Input gear density", K::Density, 0, 7.8}, {3, "Output gear dia.", K::Length, kPicked, 0.06},
          {4, "Out gear thickness", K::Length, kPicked, 0.01}, {5, "Out gear density", K::Density, 0, 7.8},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {11, "Input gear mass", K::Mass, kPicked, 0},
          {12, "Output gear mass", K::Mass, kPicked, 0}}},
        {3, "Belt", "\\BMP_data\\rotoro3.bmp", 8,
         {{0, "Input pulley dia.", K::Length, kPicked, 0.1}, {1, "In pulley thickness", K::Length, kPicked, 0.02},
          {2, "In pulley density", K::Density, 0, 2.7}, {3, "Output pulley dia.", K::Length, kPicked, 0.1},
          {4, "Out pulley thickness", K::Length, kPicked, 0.02}, {5, "Out pulley density", K::Density, 0, 2.7},
          {6, "Belt mass", K::Mass, kPicked, 0.5}, {7, "Trans. efficiency", K::Fixed, kPercent, 0.9},
          {11, "Input pulley mass", K::Mass, kPicked, 0}, {12, "Out pulley mass", K::Mass, kPicked, 0}}},
        {4, "Roller", "\\BMP_data\\rotoro4.bmp", 7,
         {{0, "Input roller dia.", K::Length, kPicked, 0.1}, {1, "In roller thickness", K::Length, kPicked, 0.02},
          {2, "In roller density", K::Density, 0, 7.8}, {3, "Output roller dia.", K::Length, kPicked, 0.1},
          {4, "Out roller thickness", K::Length, kPicked, 0.02}, {5, "Out roller density", K::Density, 0, 7.8},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {11, "Input roller mass", K::Mass, kPicked, 0},
          {12, "Out roller mass", K::Mass, kPicked, 0}}},
        {5, "Cylinder load", "\\BMP_data\\rotoro5.bmp", 5,
         {{0, "Outer diameter", K::Length, kPicked, 0.2}, {1, "Inner diameter", K::Length, kPicked, 0},
          {2, "Length", K::Length, kPicked, 0.05}, {3, "Density", K::Density, 0, 7.8},
          {4, "External torque", K::Torque, kPicked, 0}, {12, "Cylinder mass", K::Mass, kPicked, 0}}},
        {6, "Multi disks", "\\BMP_data\\rotoro6.bmp", 9,
         {{0, "Disk 1 outer dia.", K::Length, kPicked, 0.04}, {1, "Disk 1 thickness", K::Length, kPicked, 0.03},
          {2, "Disk 1 density", K::Density, 0, 7.8}, {3, "Disk 2 outer dia.", K::Length, kPicked, 0.06},
          {4, "Disk 2 thickness", K::Length, kPicked, 0.04}, {5, "Disk 2 density", K::Density, 0, 7.8},
          {6, "Disk 3 diameter", K::Length, kPicked, 0.04}, {7, "Disk 3 thickness", K::Length, kPicked, 0.03},
          {8, "Disk 3 density", K::Density, 0, 7.8}}},
        {7, "Eccent. disk", "\\BMP_data\\rotoro7.bmp", 4,
         {{0, "Outer diameter", K::Length, kPicked, 0.2}, {1, "Thickness", K::Length, kPicked, 0.02},
          {2, "Density", K::Density, 0, 2.7}, {3, "Eccentricity", K::Length, kPicked, 0},
          {12, "Disk mass", K::Mass, kPicked, 0}}},
        {8, "Rotat. block", "\\BMP_data\\rotoro8.bmp", 5,
         {{0, "Length L", K::Length, kPicked, 0.3}, {1, "Width a", K::Length, kPicked, 0.08},
          {2, "Width b", K::Length, kPicked, 0.06}, {3, "Density", K::Density, 0, 2.7},
          {4, "Eccentricity", K::Length, kPicked, 0.1}, {12, "Block mass", K::Mass, kPicked, 0}}},
        {9, "Eccent. load", "\\BMP_data\\rotoro9.bmp", 2,
         {{0, "Mass", K::Mass, kPicked, 1}, {1, "Eccentricity", K::Length, kPicked, 0.1}}},
        {10, "Exter. Force", "\\BMP_data\\rotoro10.bmp", 2,
         {{0, "External force", K::Force, kPicked, 0}, {1, "Load center dist.", K::Length, kPicked, 0.1}}},
        {11, "H ballscrew", "\\BMP_data\\rotost1.bmp", 6,
         {{0, "Screw pitch", K::Length, kPicked, 0.01}, {1, "Screw diameter", K::Length, kPicked, 0.02},
          {2, "Screw length", K::Length, kPicked, 0.6}, {3, "Trans. efficiency", K::Fixed, kPercent, 0.9},
          {4, "Table mass", K::Mass, kPicked, 1}, {5, "Friction coef.", K::Fixed, kDash, 0.1}}},
        {12, "V ballscrew", "\\BMP_data\\rotost2.bmp", 5,
         {{0, "Screw pitch", K::Length, kPicked, 0.01}, {1, "Screw diameter", K::Length, kPicked, 0.02},
          {2, "Screw length", K::Length, kPicked, 0.6}, {3, "Trans. efficiency", K::Fixed, kPercent, 0.9},
          {4, "Table mass", K::Mass, kPicked, 1}}},
        {13, "Belt", "\\BMP_data\\rotost3.bmp", 9,
         {{0, "Drive pulley dia.", K::Length, kPicked, 0.1}, {1, "D pulley thickness", K::Length, kPicked, 0.02},
          {2, "D pulley density", K::Density, 0, 2.7}, {3, "Slave pulley dia.", K::Length, kPicked, 0.1},
          {4, "S pulley thickness", K::Length, kPicked, 0.02}, {5, "S pulley density", K::Density, 0, 2.7},
          {6, "Belt mass", K::Mass, kPicked, 0.5}, {7, "Trans. efficiency", K::Fixed, kPercent, 0.9},
          {8, "Friction coef.", K::Fixed, kDash, 0.1}, {11, "Drive pulley mass", K::Mass, kPicked, 0},
          {12, "Slave pulley mass", K::Mass, kPicked, 0}}},
        {14, "Roll feed", "\\BMP_data\\rotost4.bmp", 10,
         {{0, "Drive roller dia.", K::Length, kPicked, 0.1}, {1, "D roller thickness", K::Length, kPicked, 0.06},
          {2, "D roller denity", K::Density, 0, 7.8}, {3, "Slave roller dia.", K::Length, kPicked, 0.1},
          {4, "S roller thickness", K::Length, kPicked, 0.06}, {5, "S roller density", K::Density, 0, 7.8},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {7, "Feed material mass", K::Mass, kPicked, 1},
          {8, "Friction coef.", K::Fixed, kDash, 0.1}, {9, "Pull force", K::Force, kPicked, 0},
          {11, "Drive rolller mass", K::Mass, kPicked, 0}, {12, "Slave roller mass", K::Mass, kPicked, 0}}},
        {15, "Suspension", "\\BMP_data\\rotost5.bmp", 9,
         {{0, "Drive roller dia.", K::Length, kPicked, 0.1}, {1, "D roller thickness", K::Length, kPicked, 0.02},
          {2, "D roller density", K::Density, 0, 2.7}, {3, "Slave roller dia.", K::Length, kPicked, 0.1},
          {4, "S roller thickness", K::Length, kPicked, 0.02}, {5, "S roller density", K::Density, 0, 2.7},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {7, "Workpiece mass", K::Mass, kPicked, 1},
          {8, "Balancer mass", K::Mass, kPicked, 1}, {11, "Drive roller mass", K::Mass, kPicked, 0},
          {12, "Slave roller mass", K::Mass, kPicked, 0}}},
        {16, "Pinion&Rack", "\\BMP_data\\rotost6.bmp", 6,
         {{0, "Pinion diameter", K::Length, kPicked, 0.04}, {1, "Pinion thickness", K::Length, kPicked, 0.02},
          {2, "Pinion density", K::Density, 0, 7.8}, {3, "Rack mass", K::Mass, kPicked, 1},
          {4, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {5, "Friction coef.", K::Fixed, kDash, 0.1}}},
        {17, "H nut rotat.", "\\BMP_data\\rotost7.bmp", 8,
         {{0, "Screw pitch", K::Length, kPicked, 0.01}, {1, "Screw diameter", K::Length, kPicked, 0.02},
          {2, "Screw length", K::Length, kPicked, 0.6}, {3, "Nut outer diameter", K::Length, kPicked, 0.04},
          {4, "Nut inner diameter", K::Length, kPicked, 0.02}, {5, "Nut length", K::Length, kPicked, 0.06},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {7, "Friction coef.", K::Fixed, kDash, 0.1}}},
        {18, "V nut rotat.", "\\BMP_data\\rotost8.bmp", 7,
         {{0, "Screw pitch", K::Length, kPicked, 0.01}, {1, "Screw diameter", K::Length, kPicked, 0.02},
          {2, "Screw length", K::Length, kPicked, 0.6}, {3, "Nut outer diameter", K::Length, kPicked, 0.04},
          {4, "Nut inner diameter", K::Length, kPicked, 0.02}, {5, "Nut length", K::Length, kPicked, 0.06},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}}},
        {21, "Rack&Pinion", "\\BMP_data\\sttoro1.bmp", 5,
         {{0, "Pinion diameter", K::Length, kPicked, 0.04}, {1, "Pinion length", K::Length, kPicked, 0.02},
          {2, "Pinion density", K::Density, 0, 7.8}, {3, "Rack mass", K::Mass, kPicked, 1},
          {4, "Trans. efficiency", K::Fixed, kPercent, 0.9}}},
        {31, "H linear", "\\BMP_data\\sttost1.bmp", 3,
         {{0, "Workpiece mass", K::Mass, kPicked, 1}, {1, "External load", K::Force, kPicked, 0},
          {2, "Friction coef.", K::Fixed, kDash, 0.1}}},
        {32, "V linear", "\\BMP_data\\sttost2.bmp", 1, {{0, "Workpiece mass", K::Mass, kPicked, 1}}},
        {33, "Lin inclined", "\\BMP_data\\sttost3.bmp", 3,
         {{0, "Workpiece mass", K::Mass, kPicked, 1}, {1, "Angle of incline", K::Rotation, kPicked, kPi / 6},
          {2, "Friction coef.", K::Fixed, kDash, 0.1}}},
        {34, "Balancer", "\\BMP_data\\sttost4.bmp", 9,
         {{0, "Roller 1 diameter", K::Length, kPicked, 0.1}, {1, "Roller 1 thickness", K::Length, kPicked, 0.02},
          {2, "Roller 1 density", K::Density, 0, 2.7}, {3, "Roller 2 diameter ", K::Length, kPicked, 0.1},
          {4, "Roller 2 thickness", K::Length, kPicked, 0.02}, {5, "Roller 2 density", K::Density, 0, 2.7},
          {6, "Trans. efficiency", K::Fixed, kPercent, 0.9}, {7, "Workpiece mass", K::Mass, kPicked, 1},
          {8, "Balancer mass", K::Mass, kPicked, 1}, {11, "Roller 1 mass", K::Mass, kPicked, 0},
          {12, "Roller 2 mass", K::Mass, kPicked, 0}}},
        {41, "Cart", "\\BMP_data\\sp_ex1.bmp", 7,
         {{0, "Total cart weight", K::Mass, kPicked, 1}, {1, "Total efficiency", K::Fixed, kPercent, 0.8},
          {2, "Total reduction ratio", K::Fixed, kOutIn, 0.01}, {3, "Number of wheels", K::Fixed, kNoUnit, 4},
          {4, "Wheel diameter", K::Length, kPicked, 0.1}, {5, "Wheel thickness", K::Length, kPicked, 0.03},
          {6, "Wheel density", K::Density, 0, 2.7}}},
        {42, "Pinion cart", "\\BMP_data\\sp_ex2.bmp", 11,
         {{0, "Total car weight", K::Mass, kPicked, 1}, {1, "Total efficiency", K::Fixed, kPercent, 0.8},
          {2, "Total reduction ratio", K::Fixed, kOutIn, 0.01}, {3, "Number of wheels", K::Fixed, kNoUnit, 4},
          {4, "Wheel diameter", K::Length, kPicked, 0.1}, {5, "Wheel thickness", K::Length, kPicked, 0.03},
          {6, "Wheel density", K::Density, 0, 2.7}, {7, "Pinion diameter", K::Length, kPicked, 0.04},
          {8, "Pinion thickness", K::Length, kPicked, 0.02}, {9, "Pinion density", K::Density, 0, 7.8},
          {10, "Friction coef.", K::Fixed, kDash, 0.1}}},
        {kTypeMotor, "Motor", "", 10,
         {{0, "Capacity", K::Power, 0, 0}, {1, "Rotational speed", K::MotorSpeed, kPicked, 0},
          {2, "Inertia", K::Inertia, kPicked, 0}, {3, "Rated torque", K::Torque, kPicked, 0},
          {4, "Maximum torque", K::Torque, kPicked, 0}, {5, "Allowable inertia rate", K::Rate, 0, 0},
          {6, "Brake inertia", K::Inertia, kPicked, 0}, {7, "Mass", K::Mass, kPicked, 0},
          {8, "Regeneration(J)", K::Energy, 0, 0}, {9, "Regeneration(W)", K::Power, 0, 0}}},
    };
    return types;
}

const TypeDef* Find(int16_t type) {
    for (const TypeDef& t : Types())
        if (t.code == type) return &t;
    return nullptr;
}

// The ItemText a fresh row gets; everything else starts empty.
std::string_view DefaultText(int16_t type, int row, bool inUse) {
    if (type == 1) return (row <= 1 && inUse) ? "1" : (!inUse || row == 13) ? "0" : "";
    if (type == 2 && row == 0) return "0.02";
    if (type == 2 && row == 1) return "0.01";
    if (type == 2 && row == 2) return "7.8";
    if (type == 33 && row == 1) return "0.523";
    if ((type == 41 || type == 42) && row == 2) return "1/100";
    return "";
}

// Last row to mark as not in use: the mass rows of a type stay.
int LastFreeRow(const TypeDef* t) {
    bool row11 = false, row12 = false;
    if (t != nullptr)
        for (const RowDef& r : t->rows) row11 |= r.row == 11, row12 |= r.row == 12;
    return row11 ? 10 : row12 ? 11 : 13;
}

bool Holds(std::string_view text, std::string_view part) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower.find(part) != std::string::npos;
}

}  // namespace

void Init_ItemCounts() {
    ElementItemCount.fill(0);
    for (const TypeDef& t : Types()) ElementItemCount[t.code] = t.count;
}

bool Type_Known(int16_t type) { return Find(type) != nullptr; }

std::string_view Type_Label(int16_t type) {
    const TypeDef* t = Find(type);
    return t ? t->label : "";
}

std::string_view Type_Bitmap(int16_t type) {
    const TypeDef* t = Find(type);
    return t ? t->bitmap : "";
}

void Item_Defaults(int16_t type, std::array<ElementItem, kItemRows>& rows) {
    auto& target = type == kTypeMotor ? Element[0].Item : rows;
    const TypeDef* t = Find(type);
    if (t != nullptr || type == kTypeEmpty) {
        if (t != nullptr) {
            for (const RowDef& r : t->rows) {
                ElementItem& item = target[r.row];
                item.ItemName = r.name;
                item.UnitKind = r.kind;
                item.UnitIndex = r.unit == kPicked ? UnitTable[r.kind].Sel : r.unit;
                item.Value = r.value;
                item.ItemText = DefaultText(type, r.row, true);
            }
        }
        const int count = t != nullptr ? t->count : 0;
        for (int row = count; row <= LastFreeRow(t); ++row) {
            ElementItem& item = target[row];
            item.UnitKind = kUnitNotUsed;
            item.UnitIndex = kUnitNotUsed;
            item.Value = 0;
            item.ItemName = "";
            item.ItemText = DefaultText(type, row, false);
        }
    }
    if (type != kTypeMotor) {
        ElementItem& item = target[13];
        item.ItemName = "Culculated inertia";
        item.UnitKind = UnitKind::Inertia;
        item.UnitIndex = UnitTable[UnitKind::Inertia].Sel;
        item.ItemText = DefaultText(type, 13, true);
    }
}

void Item_Format(ElementRecord& element) {
    for (int row = 0; row <= 12; ++row) {
        ElementItem& item = element.Item[row];
        if (item.ItemText.Str().find("--") != std::string_view::npos) continue;
        if (Holds(item.ItemName.Str(), "reduction")) continue;
        const double shown = FromS(item.UnitKind, item.UnitIndex, item.Value);
        item.ItemText = Holds(item.ItemName.Str(), "inertia") ? Num_Format(shown, 1, 0) : Num_Format(shown, 0, 1);
    }
    ElementItem& last = element.Item[13];
    last.ItemText = Num_Format(FromS(last.UnitKind, last.UnitIndex, last.Value), 1, 0);
}

void Item_Values(const ElementRecord& element, std::array<double, kItemRows>& values) {
    for (int row = 0; row < kItemRows; ++row) values[row] = element.Item[row].Value;
}

int16_t Item_HasMassInput(int16_t type) {
    switch (type) {
        case 2: case 3: case 4: case 5: case 7: case 8: case 13: case 14: case 15: case 34: return 1;
        default: return -1;
    }
}

std::string Num_Format(double value, int16_t keep, int16_t whole) {
    const std::string text = Format_Mask(value, kMaskSci4);
    if (keep != 0) return text;
    const double back = Val(text);
    if (back != 0) return NumberText(back);
    return whole != 0 ? "0" : "0.000";
}
