// A part of calc/mdlCulcurate.h.
// Reduction: each component type's physics turned into the one uniform
// calculation record that the chain calculation knows.
#include <cmath>

#include "base/RuntimeError.h"
#include "calc/Cart.h"
#include "calc/Formula.h"
#include "calc/mdlCulcurate.h"
#include "units/Constants.h"

namespace {

constexpr int16_t kDirectInertia = 1;
constexpr int16_t kDirectMass = 2;

// A disk of diameter d and thickness t of density r in g/cm3, in kg.
double Disk(double d, double t, double r) { return r * kPi * Sq(d) * t / 4 * 1000; }

// A steel rod of diameter d and length l, in kg; the constant holds density
// and pi, and no factor of 1000 belongs here.
double Steel(double d, double l) { return Sq(d) * kSteel * l / 4; }

// A diameter of 0 under the line is no number the calculation can go on with.
double Divide(double a, double b) {
    if (b == 0) throw RuntimeError("Division by zero");
    return a / b;
}

// The two disks of rows 0 to 5 as m1 and m2: entered in rows 11 and 12 in
// direct mass input, else computed and shown there.
void TwoDisks(ItemValues& p, int16_t mode, ParamRecord& r) {
    if (mode != kDirectMass) {
        p[11] = Disk(p[0], p[1], p[2]);
        p[12] = Disk(p[3], p[4], p[5]);
    }
    r.m1 = p[11];
    r.m2 = p[12];
}

// The one body of a type with row 12: entered in direct mass input, else
// computed and shown there.
double OneBody(ItemValues& p, int16_t mode, double computed) {
    if (mode != kDirectMass) p[12] = computed;
    return p[12];
}

// The loss-free parts of a record whose ratio and efficiency are 1.
void Rigid(ParamRecord& r) {
    r.ratio = 1;
    r.eff = 1;
}

void RotatingToRotating(int16_t type, ItemValues& p, int16_t mode, ParamRecord& r) {
    switch (type) {
        case 1:
            r.inert0 = p[2];
            r.ratio = p[0];
            r.eff = p[1];
            return;
        case 2:
        case 3:
        case 4:
            TwoDisks(p, mode, r);
            r.inert0 = Sq(p[0]) * r.m1 / 8;
            if (type == 3) r.inert0 = Sq(p[0]) * p[6] / 4 + r.inert0;
            r.inert1 = Sq(p[3]) * r.m2 / 8;
            r.ratio = Divide(p[0], p[3]);
            r.eff = type == 3 ? p[7] : p[6];
            return;
        case 5:
            r.m1 = OneBody(p, mode, (Sq(p[0]) - Sq(p[1])) * p[3] * kPi * p[2] / 4 * 1000);
            r.inert0 = (Sq(p[1]) + Sq(p[0])) * r.m1 / 8;
            Rigid(r);
            r.exforce = p[4];
            return;
        case 6:
            r.m1 = Disk(p[0], p[1], p[2]);
            r.m2 = Disk(p[3], p[4], p[5]);
            r.m3 = Disk(p[6], p[7], p[8]);
            r.inert0 = (Sq(p[0]) * r.m1 + Sq(p[3]) * r.m2 + Sq(p[6]) * r.m3) / 8;
            Rigid(r);
            return;
        case 7:
            r.m1 = OneBody(p, mode, Disk(p[0], p[1], p[2]));
            r.inert0 = Sq(p[0]) * r.m1 / 8 + Sq(p[3]) * r.m1;
            Rigid(r);
            return;
        case 8:
            r.m1 = OneBody(p, mode, p[3] * p[0] * p[1] * p[2] * 1000);
            r.inert0 = (Sq(p[1]) + Sq(p[0])) * r.m1 / 12 + Sq(p[4]) * r.m1;
            Rigid(r);
            return;
        case 9:
            r.inert0 = Sq(p[1]) * p[0];
            Rigid(r);
            return;
        case 10:
            Rigid(r);
            r.exforce = p[1] * p[0];
            return;
        default:
            return;
    }
}

// Screws: a screw (11, 12) or a nut (17, 18) turned by the motor.
void Screw(int16_t type, const ItemValues& p, ParamRecord& r) {
    const bool vertical = type == 12 || type == 18;
    if (type == 11 || type == 12) {
        r.m1 = Steel(p[1], p[2]);
        r.inert0 = Sq(p[1]) * r.m1 / 8;
        r.inert1 = p[4];
        r.eff = p[3];
        r.fric = vertical ? 0 : p[5];
    } else {
        r.m1 = (Sq(p[3]) - Sq(p[4])) * kSteel * p[5] / 4;
        r.inert0 = (Sq(p[4]) + Sq(p[3])) * r.m1 / 8;
        r.inert1 = Steel(p[1], p[2]);
        r.eff = p[6];
        r.fric = vertical ? 0 : p[7];
    }
    r.ratio = p[0] / kTwoPi;
    r.exforce = vertical ? r.inert1 * kGravity : 0;
}

void RotatingToLinear(int16_t type, ItemValues& p, int16_t mode, ParamRecord& r) {
    switch (type) {
        case 11:
        case 12:
        case 17:
        case 18:
            Screw(type, p, r);
            return;
        case 13:
        case 14:
        case 15:
            TwoDisks(p, mode, r);
            r.inert0 = type == 14 ? (Sq(p[0]) * r.m2 + Sq(p[0]) * r.m1) / 8
                                  : Sq(p[0]) * r.m2 / 8 + Sq(p[0]) * r.m1 / 8;
            r.ratio = p[0] / 2;
            if (type == 13) {
                r.inert1 = p[6];
                r.eff = p[7];
                r.fric = p[8];
            } else if (type == 14) {
                r.inert1 = p[7];
                r.eff = p[6];
                r.exforce = p[9];
                r.fric = p[8];
            } else {
                r.inert1 = p[8] + p[7];
                r.eff = p[6];
                r.exforce = (p[7] - p[8]) * kGravity;
            }
            return;
        case 16:
            r.m1 = Disk(p[0], p[1], p[2]);
            r.inert0 = Sq(p[0]) * r.m1 / 8;
            r.inert1 = p[3];
            r.ratio = p[0] / 2;
            r.eff = p[4];
            r.fric = p[5];
            return;
        default:
            return;
    }
}

void LinearToOther(int16_t type, ItemValues& p, int16_t mode, ParamRecord& r) {
    switch (type) {
        case 21:
            r.m1 = Disk(p[0], p[1], p[2]);
            r.inert0 = p[3];
            r.inert1 = Sq(p[0]) * r.m1 / 8;
            r.ratio = Divide(2, p[0]);
            r.eff = p[4];
            return;
        case 31:
        case 32:
        case 33:
            r.inert1 = p[0];
            Rigid(r);
            if (type == 31) {
                r.exforce = p[1];
                r.fric = p[2];
            } else if (type == 32) {
                r.exforce = p[0] * kGravity;
            } else {
                r.exforce = p[0] * kGravity * std::sin(p[1]);
                r.fric = std::cos(p[1]) * p[2];
            }
            return;
        case 34:
            TwoDisks(p, mode, r);
            r.inert0 = p[8] + p[7];
            r.inert1 = (r.m2 + r.m1) / 2;
            r.ratio = 1;
            r.eff = p[6];
            r.exforce = (p[7] - p[8]) * kGravity;
            return;
        default:
            return;
    }
}

// Types 41 and 42 keep their bodies here for the report only; their inertia
// comes from Special_Inertia.
void Special(int16_t type, const ItemValues& p, ParamRecord& r) {
    if (type != kTypeCart && type != kTypePinionCart) return;
    const CartBodies b = Cart_Bodies(type, p, 0);
    r.m1 = p[0];
    r.m2 = b.wheels;
    r.m3 = b.pinion;
    r.ratio = b.ratio;
    r.eff = p[1];
    r.fric = type == kTypePinionCart ? p[10] : 0;
}

// Only the types with rows 11 and 12 look at direct mass input, so on any
// other type that mode changes nothing.
ParamRecord Reduce(int16_t type, ItemValues& p, int16_t mode) {
    ParamRecord r{};
    if (type >= 1 && type <= 10) RotatingToRotating(type, p, mode, r);
    if (type >= 11 && type <= 20) RotatingToLinear(type, p, mode, r);
    if (type >= 21 && type <= 40) LinearToOther(type, p, mode, r);
    if (type >= 41 && type <= 49) Special(type, p, r);
    return r;
}

}  // namespace

int16_t Element_Reduce(int16_t index, ElementRecord& element) {
    if (index < 1 || index > kMaxElements) return 1;
    ItemValues p = Item_P(element);
    ParamRecord r = Reduce(element.ElementType, p, element.InputMode);
    if (element.InputMode == kDirectInertia) r.inert0 = element.DirectValue;
    Param[index] = r;
    for (std::size_t i = 0; i < p.size(); ++i) element.Item[i].Value = p[i];

    // The element's own inertia; a failed call leaves 0. In direct inertia
    // input this raises DirectValue by inert1 * ratio^2 at every reduction,
    // which only the types with an output-side inertia notice.
    double J = 0, ratio = 0;
    const int16_t status = element.ElementType > 40 ? Special_Inertia(element, 0, J, ratio)
                                                     : Chain_Inertia(0, index, J, ratio);
    element.DirectValue = J;
    element.Item[13].Value = J;
    return status;
}

int16_t Param_Get(int16_t index, ParamRecord& record) {
    if (index < 1 || index > kMaxElements) return 1;
    record = Param[index];
    return 0;
}
