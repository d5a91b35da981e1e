// A part of calc/mdlCulcurate.h.
// The load inertia at the motor shaft and the motion ratio of the chain.
#include "calc/Cart.h"
#include "calc/Formula.h"
#include "calc/mdlCulcurate.h"

int16_t Chain_Inertia(int16_t mode, int16_t n, double& JL, double& ratio) {
    if ((mode != 0 && mode != 1) || n < 1 || n > kMaxElements) return 1;
    if (mode == 0) {
        ratio = Param[n].ratio;
        JL = Param[n].inert1 * Sq(ratio) + Param[n].inert0;
        return 0;
    }
    // inert0 turns with the previous element's output, inert1 with the element's own.
    double ratioOut = 1, J = 0;
    for (int i = 1; i <= n; ++i) {
        const double ratioIn = ratioOut;
        ratioOut = ratioOut * Param[i].ratio;
        J = J + Param[i].inert0 * Sq(ratioIn) + Param[i].inert1 * Sq(ratioOut);
    }
    JL = J;
    ratio = ratioOut;
    return 0;
}

int16_t Special_Inertia(const ElementRecord& element, double mass, double& JL, double& ratio) {
    const int16_t type = element.ElementType;
    if (type != kTypeCart && type != kTypePinionCart) return 1;
    const ItemValues p = Item_P(element);
    const CartBodies b = Cart_Bodies(type, p, mass);
    if (type == kTypeCart) {
        JL = b.wheels * Sq(p[4]) * Sq(p[2]) / 8 + Sq(b.ratio) * (b.wheels + b.vehicle);
    } else {
        const double all = b.wheels + b.vehicle + b.pinion;
        JL = (Sq(p[4]) * b.wheels + Sq(p[7]) * b.pinion) * Sq(p[2]) / 8 + Sq(b.ratio) * all;
    }
    ratio = b.ratio;
    return 0;
}

double Load_Inertia(const ElementTable& elements, int16_t flag, double& mass) {
    const ElementRecord& first = elements[1];
    double JL = 0, ratio = 0;
    int16_t status = 0;
    if (first.ElementType >= 41 && first.ElementType <= 49) {
        // Whatever the caller passed: the chosen motor rides on the cart.
        mass = flag != kMotorNone ? SelectedMotorMass : 0;
        status = Special_Inertia(first, mass, JL, ratio);
    } else {
        status = Chain_Inertia(1, ElementCount - 1, JL, ratio);
    }
    if (status != 0) return -1;
    if (flag != kMotorTrial) {
        LoadInertiaTotal = SelectedJb + JL;
        TotalRatio = ratio;
    }
    return SelectedJb + JL;
}
