#include "units/UnitTable.h"

#include <initializer_list>
#include <string_view>

#include "base/RuntimeError.h"
#include "units/Constants.h"

namespace {

// Base units per unit: value in the unit times factor = value in the base unit.
struct Factors {
    std::array<double, 7> f{};
    int count = 0;
};

Factors Make(std::initializer_list<double> list) {
    Factors k;
    for (const double v : list) k.f[k.count++] = v;
    return k;
}

const std::array<Factors, kUnitCategories>& FactorTable() {
    static const std::array<Factors, kUnitCategories> table = {
        Make({0.001, 1, 60}),
        Make({0.001, 0.01, 1}),
        Make({0.001, 0.01, 1}),
        Make({kTwoPi, kPi / 180, 1}),
        Make({0.001, 0.01, 1, 1.0 / 60}),
        Make({1, 60 / kTwoPi, 60, 1.0 / 6}),
        Make({kTwoPi / 60, 1, kTwoPi, kPi / 180}),
        Make({0.001, 1}),
        Make({0.0001, 1, 0.000025, 0.25, 0.00001 * kGravity, 0.01 * kGravity}),
        Make({0.001, 1, 0.001 * kGravity, kGravity}),
        Make({0.001, 1, 0.00001 * kGravity, 0.01 * kGravity, kGravity}),
    };
    return table;
}

// The factor of a unit, or 0 when the kind or index has no conversion.
double Factor(int16_t kind, int16_t unit) {
    if (kind < 0 || kind >= kUnitCategories) return 0;
    const Factors& k = FactorTable()[kind];
    return (unit >= 0 && unit < k.count) ? k.f[unit] : 0;
}

// "\xB7" is the middle dot, "\xB2" superscript two, "\xB3" superscript three,
// "\x93" the opening quotation mark, all of the Western code page.
const std::array<std::initializer_list<std::string_view>, kUnitCategories> kNames = {{
    {"ms", "s", "min"},
    {"mm", "cm", "m"},
    {"mm", "cm", "m"},
    {"Rotations", "Degrees", "rad"},
    {"mm/s", "cm/s", "m/s", "m/min"},
    {"r/min", "rad/s", "r/s", "\x93" "degree/s"},
    {"r/min", "rad/s", "r/s", "\x93" "degree/s"},
    {"g", "kg"},
    {"kg\xB7" "cm\xB2(GD2/4)", "kg\xB7m\xB2(GD2/4)", "kgf\xB7" "cm\xB2(GD2)", "kgf\xB7m\xB2(GD2)",
     "gf\xB7" "cm\xB7s\xB2", "kgf\xB7" "cm\xB7s\xB2"},
    {"mN", "N", "gf", "kgf"},
    {"N\xB7mm", "N\xB7m", "gf\xB7" "cm", "kgf\xB7" "cm", "kgf\xB7m"},
}};

}  // namespace

void Unit_SetNames() {
    for (int k = 0; k < kUnitCategories; ++k) {
        UnitTable[k].Names = {};
        int i = 0;
        for (const std::string_view n : kNames[k]) UnitTable[k].Names[i++] = std::string(n);
    }
}

int Unit_Count(int kind) { return (kind >= 0 && kind < kUnitCategories) ? FactorTable()[kind].count : 0; }

double FromS(int16_t kind, int16_t unit, double value) {
    const double f = Factor(kind, unit);
    return f == 0 ? value : value / f;
}

double ToS(int16_t kind, int16_t unit, double value) {
    const double f = Factor(kind, unit);
    return f == 0 ? value : value * f;
}

std::string Unit_Name(int16_t kind, int16_t index) {
    if (kind >= 0 && kind < kUnitCategories) {
        if (index < 0 || index > 6) throw RuntimeError("Subscript out of range");
        return UnitTable[kind].Names[index];
    }
    switch (kind) {
        case 11: return index == 0 ? "-" : index == 1 ? "%" : index == 2 ? "OUT/IN" : "";
        case 12: return "g/cm\xB3";
        case 13: return "W";
        case 14: return "J";
        case 15: return "Rate";
        default: return "";
    }
}

int16_t Unit_Map(int16_t kind, int16_t oldIndex) {
    if (kind >= 0 && kind < kUnitCategories) return UnitTable[kind].Sel;
    return kind == 11 ? oldIndex : 0;
}
