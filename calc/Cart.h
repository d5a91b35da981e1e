// The special mechanisms, a whole drive in one element: the cart on driven
// wheels (41) and the cart driven through a pinion (42).
#pragma once

#include "calc/Formula.h"

inline constexpr int16_t kTypeCart = 41;
inline constexpr int16_t kTypePinionCart = 42;

// The bodies of a cart carrying mass kg more, in kg, and its travel per
// motor radian.
struct CartBodies {
    double vehicle = 0;  // M: the cart with the added mass
    double wheels = 0;   // W: all wheels
    double pinion = 0;   // Q: the pinion of type 42, else 0
    double ratio = 0;    // R
};

double Cart_WheelMass(const ItemValues& p);
double Cart_PinionMass(const ItemValues& p);
CartBodies Cart_Bodies(int16_t type, const ItemValues& p, double mass);
