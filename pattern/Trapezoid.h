// The trapezoid builder without its window: the four fields, their checks
// when they lose the focus, the range label and the rows of one symmetric
// trapezoid or triangle. Texts are in the single-byte code page.
#pragma once

#include <cstdint>
#include <string>

struct TrapezoidForm {
    std::string mebMoveTime, mebMoveDistance, mebAccelTime, mebAccel;
    bool optTime = true;  // the accel/decel time is given, else the acceleration
    double AccelTimeMax = 0, AccelMin = 0, AccelMax = 0;
    int16_t InputError = 0;
    std::string lblMax;
    // Unit labels: of time, of the distance, and of the acceleration.
    std::string lblTime, lblLength, lblRapid;
};

inline constexpr const char* kTrapezoidTitle = "Trapezoidal Pattern";

// False, after the message, when the row above the grid row does not end at rest.
bool Trapezoid_MayOpen(int gridRow);

// The unit labels as the form shows them at its activation.
void Trapezoid_Activate(TrapezoidForm& form);

// The keys the four fields let through.
bool Trapezoid_KeyAllowed(char16_t key);

// Cuts a number to three decimals, never rounding, in the format "0.000".
std::string Trapezoid_Trim(const std::string& text);

// Each field losing the focus. False when the focus must stay in it.
bool MoveTime_Leave(TrapezoidForm& form);
bool MoveDistance_Leave(TrapezoidForm& form);
bool Accel_Leave(TrapezoidForm& form);
bool AccelTime_Leave(TrapezoidForm& form);

// Picks an option and rebuilds the range label for it.
void Option_Pick(TrapezoidForm& form, bool accelTime);

// "OK": builds the rows at the grid row and recalculates. False, with the
// form kept open, when a field is missing or fails its check.
bool Trapezoid_OK(TrapezoidForm& form, int gridRow);

// Writes the rows of a move of T seconds with accel/decel time Ta and peak
// load speed V (base units) from record s on; D is not read.
void Make_Patarn(double& T, double& Ta, double& D, double& V, int16_t s);
