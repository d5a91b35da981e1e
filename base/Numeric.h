// Reading numbers from text and the whole-number and equality rules that the
// system uses everywhere. Always the C locale, whatever the machine's locale.
#pragma once

#include <cstdint>
#include <string_view>

// True when the text, blanks at both ends aside, is one decimal number:
// an optional sign, digits with an optional point, an optional exponent.
bool IsNumeric(std::string_view text);

// The number at the head of the text; 0 when there is none. Blanks, tabs and
// line feeds anywhere in the text are skipped; reading stops at the first
// character that cannot continue the number.
double Val(std::string_view text);

// Nearest integer, ties to even.
double Round_Even(double x);

// A 16-bit integer from text, rounded ties to even. Throws RuntimeError when
// the text is no number ("Type mismatch") or the number does not fit ("Overflow").
int16_t CInt(std::string_view text);

// A 16-bit integer from a number read from outside (a catalogue field, a row
// count), rounded ties to even. Throws RuntimeError "Overflow" when it does
// not fit, NaN and the infinities included.
int16_t CInt(double value);

// Equality in single precision: the difference, rounded to float, below 1e-5.
bool Same_Single(double a, double b);
