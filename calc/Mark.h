// The mark -9999 of a value that could not be computed.
#pragma once

#include <cmath>

#include "core/Tables.h"

// A value counts as marked when it equals -9999 in single precision.
inline bool Is_Marked(double x) { return static_cast<float>(x) == static_cast<float>(kOver); }

// The value itself, or the mark when a division by zero, an overflow or an
// invalid operation made it non-finite.
inline double Finite_Or_Over(double x) { return std::isfinite(x) ? x : kOver; }
