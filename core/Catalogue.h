// The component catalogue: what each type code is, its label and picture, and
// the parameter rows with which a placed component is filled.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Tables.h"

inline constexpr int16_t kTypeEmpty = 50;
inline constexpr int16_t kTypeMotor = 51;

// Fills ElementItemCount with the parameter rows of every type.
void Init_ItemCounts();

// True for the codes of the catalogue (1 to 18, 21, 31 to 34, 41, 42, 51).
bool Type_Known(int16_t type);

// Label under the picture ("Reduct. gear"); "" for an unknown code.
std::string_view Type_Label(int16_t type);

// Picture file below AppPath, as "\BMP_data\rotoro1.bmp"; "" for the motor
// and unknown codes.
std::string_view Type_Bitmap(int16_t type);

// Writes the rows of the type into rows (Element(0) for the motor).
void Item_Defaults(int16_t type, std::array<ElementItem, kItemRows>& rows);

// Rewrites the ItemText of the rows from their Value.
void Item_Format(ElementRecord& element);

// The Value of rows 0 to 13.
void Item_Values(const ElementRecord& element, std::array<double, kItemRows>& values);

// 1 for the types whose masses may be entered directly, -1 otherwise.
int16_t Item_HasMassInput(int16_t type);

// Four significant digits through "#.0##E+0"; unless keep, shown as the
// ordinary text of that number, and a zero as "0" (whole) or "0.000".
std::string Num_Format(double value, int16_t keep, int16_t whole);
