// The system's own constants. The calculation and the unit conversion share
// them, so a number converted and a number calculated agree.
#pragma once

inline constexpr double kPi = 3.14;
inline constexpr double kTwoPi = 6.28;
inline constexpr double kGravity = 9.8;
// Steel density times pi, for a rod's mass from its diameter and length.
inline constexpr double kSteel = 24492.0;
