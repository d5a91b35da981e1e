// The eleven unit categories, the user's pick in each, and the conversion
// between a category's units and its base unit.
#pragma once

#include <array>
#include <cstdint>
#include <string>

struct UnitCategory {
    int16_t Sel = 0;                  // index of the picked unit
    std::array<std::string, 7> Names;  // single-byte code page texts
};

// The unit categories: 0 to 10 have units the user picks, 11 to 15 fixed
// labels. Written UnitKind::MotorSpeed; the numbers are those of the files.
namespace UnitKind {
enum : int16_t {
    Time = 0,
    Length = 1,
    Distance = 2,         // operating distance
    Rotation = 3,
    Speed = 4,
    MotorSpeed = 5,       // base unit r/min
    RotationalSpeed = 6,  // base unit rad/s
    Mass = 7,
    Inertia = 8,
    Force = 9,
    Torque = 10,
    Fixed = 11,  // "-", "%", "OUT/IN" or none
    Density = 12,
    Power = 13,
    Energy = 14,
    Rate = 15,
};
}  // namespace UnitKind

inline constexpr int kUnitCategories = 11;
inline constexpr int16_t kUnitNotUsed = 9999;

inline std::array<UnitCategory, kUnitCategories> UnitTable{};

// Picks of a fresh installation, and those of the button "Defaults".
inline constexpr std::array<int16_t, kUnitCategories> kUnitFreshSel = {1, 0, 0, 1, 0, 0, 1, 1, 1, 1, 1};
inline constexpr std::array<int16_t, kUnitCategories> kUnitDefaultSel = {1, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1};

// Fills the names of every category; the picks are left alone.
void Unit_SetNames();

// Number of units of a category (0 to 10); 0 for any other kind.
int Unit_Count(int kind);

// Value in the base unit to the given unit, and back. Kinds without a
// conversion return the value unchanged. Neither ever fails.
double FromS(int16_t kind, int16_t unit, double value);
double ToS(int16_t kind, int16_t unit, double value);

// Label of a unit. Kinds 0 to 10 give the category's name (an index of 7 or
// more is a run-time failure), 11 to 15 their fixed labels, any other "".
std::string Unit_Name(int16_t kind, int16_t index);

// The unit an item shows after the picks changed.
int16_t Unit_Map(int16_t kind, int16_t oldIndex);
