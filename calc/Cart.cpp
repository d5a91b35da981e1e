#include "calc/Cart.h"

#include "units/Constants.h"

double Cart_WheelMass(const ItemValues& p) { return p[6] * p[3] * kPi * Sq(p[4]) * p[5] / 4 * 1000; }

double Cart_PinionMass(const ItemValues& p) { return p[8] * kPi * Sq(p[7]) * p[9] / 4 * 1000; }

CartBodies Cart_Bodies(int16_t type, const ItemValues& p, double mass) {
    CartBodies b;
    b.vehicle = mass + p[0];
    b.wheels = Cart_WheelMass(p);
    if (type == kTypePinionCart) {
        b.pinion = Cart_PinionMass(p);
        b.ratio = p[7] * p[2] / 2;
    } else {
        b.ratio = p[2] * p[4] / 2;
    }
    return b;
}
