// Every number the system shows or writes goes through these. A mask rounds
// the number's decimal form taken to 15 significant digits, half away from
// zero; a mask whose decimals are all optional drops the point when no
// decimal digit remains.
#pragma once

#include <string>
#include <string_view>

// The masks in use.
inline constexpr std::string_view kMask3 = "0.000";
inline constexpr std::string_view kMask1 = "0.0";
inline constexpr std::string_view kMask2 = "0.00";
inline constexpr std::string_view kMaskOpt1 = "0.#";
inline constexpr std::string_view kMaskOpt2 = "0.##";
inline constexpr std::string_view kMaskWhole = "0";
inline constexpr std::string_view kMaskSci4 = "#.0##E+0";
inline constexpr std::string_view kMaskSci5 = "#.0000E+0";

// The value through one of the masks above (any mask of the same shapes:
// an integer digit '0' or '#', a point with '0' then '#' decimals, and an
// optional exponent "E+" with '0' digits).
std::string Format_Mask(double value, std::string_view mask);

// The general text of a double: at most 15 significant digits, no trailing
// zeros, exponent form "1.5E+20", "1E-05" when the decimal exponent is below
// -4 or at least 15; minus zero prints "0".
std::string NumberText(double x);
