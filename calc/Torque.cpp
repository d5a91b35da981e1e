// A part of calc/mdlCulcurate.h.
// The torque that the motor gives over one interval of straight-line speed
// change, and the energy that flows back into the drive.
#include <cmath>

#include "calc/Cart.h"
#include "calc/Formula.h"
#include "calc/mdlCulcurate.h"
#include "units/Constants.h"

namespace {

// Shorter intervals than this cannot be computed.
constexpr double kShortestInterval = 0.000001;

// Acceleration in rad/s2 at the motor shaft, speeds in r/min.
double Acceleration(double v1, double v2, double dt) { return (v2 * kPi / 30 - v1 * kPi / 30) / dt; }

// A term divided by koritu. Most terms of a chain are 0 (no load, no
// friction); they skip the division, which is the inner loop's cost, unless
// koritu itself is 0 or not finite and the division must fail.
double Through(double term, double koritu) {
    return term == 0 && koritu != 0 && std::isfinite(koritu) ? term : term / koritu;
}

double Sgn(double x) { return x > 0 ? 1 : (x < 0 ? -1 : 0); }

// Friction acts against the motion, told by the sign of v1 + v2. At rest, or
// when the speed crosses zero symmetrically, it can only hold: it eats up a
// constant load and never reverses it.
double With_Friction(double T, double fric, double v1, double v2) {
    const double sum = v1 + v2;
    if (sum < 0) return T - fric;
    if (sum > 0) return T + fric;
    const double held = T - Sgn(T) * fric;
    return T * held <= 0 ? 0 : held;
}

// Energy back into the drive: only while torque and mean speed have strictly
// opposite signs.
double Regenerated(double T, double v1, double v2, double dt) {
    const double mean = (v1 + v2) / 2;
    const bool braking = (mean > 0 && T < 0) || (mean < 0 && T > 0);
    return braking ? std::fabs(mean) * kPi * std::fabs(T) * dt / 30 : 0;
}

}  // namespace

ChainTerms Chain_Terms(int16_t n) {
    // koritu is the product of the efficiencies from the motor up to and
    // including element i; every term of element i is divided by it. The
    // motor's own inertia is free of it.
    double ratioOut = 1, koritu = 1;
    ChainTerms c;
    for (int i = 1; i <= n && i < kElementSlots; ++i) {
        const ParamRecord& p = Param[i];
        const double ratioIn = ratioOut;
        ratioOut = ratioOut * p.ratio;
        koritu = koritu * p.eff;
        c.inertIn += Through(Sq(ratioIn) * p.inert0, koritu);
        c.inertOut += Through(Sq(ratioOut) * p.inert1, koritu);
        c.exforce += Through(ratioOut * p.exforce, koritu);
        c.fric += Through(std::fabs(ratioOut * p.fric * p.inert1 * kGravity), koritu);
    }
    return c;
}

int16_t Interval_Torque(const ChainTerms& c, double dt, double v1, double v2, double Jm, double& T, double& R) {
    if (dt < kShortestInterval) return 1;
    const double a = Acceleration(v1, v2, dt);
    TorqueAcc = a * Jm + c.inertIn * a + c.inertOut * a;
    TorqueEx = c.exforce;
    TorqueFric = c.fric;
    T = With_Friction(TorqueAcc + TorqueEx, c.fric, v1, v2);
    R = Regenerated(T, v1, v2, dt);
    return 0;
}

int16_t Interval_Torque(int16_t n, double dt, double v1, double v2, double Jm, double& T, double& R) {
    return Interval_Torque(Chain_Terms(n), dt, v1, v2, Jm, T, R);
}

int16_t Special_Torque(const ElementRecord& element, double dt, double v1, double v2, double mass, double Jm,
                       double& T, double& R) {
    if (dt < kShortestInterval) return 1;
    double J = 0, ratio = 0;
    const int16_t status = Special_Inertia(element, mass, J, ratio);
    if (status != 0) return status;
    const ItemValues p = Item_P(element);
    const double a = Acceleration(v1, v2, dt);
    // p1 is the efficiency of the whole drive.
    TorqueAcc = (J / p[1] + Jm) * a;
    TorqueEx = 0;
    TorqueFric = 0;
    T = TorqueAcc;
    if (element.ElementType == kTypePinionCart) {
        const CartBodies b = Cart_Bodies(kTypePinionCart, p, mass);
        TorqueFric = (b.wheels + b.vehicle + b.pinion) * ratio * p[10] * kGravity / p[1];
        T = With_Friction(T, TorqueFric, v1, v2);
    }
    R = Regenerated(T, v1, v2, dt);
    return 0;
}

void Torque_Parts(double& acc, double& ex, double& fric) {
    acc = TorqueAcc;
    ex = TorqueEx;
    fric = TorqueFric;
}
