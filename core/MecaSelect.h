// The rules of the mechanical system selection: twelve pictures in three rows
// of four, 0 the manual selection, 1 to 9 the machines, 10 and 11 empty.
#pragma once

#include <cstdint>

inline constexpr int kMecaCells = 12;

enum class MecaKey { Up, Down, Left, Right };

// The picture an arrow key moves to; the grid wraps in both directions.
int16_t Meca_Arrow(int16_t current, MecaKey key);

// OK: sets MecaResult (2 for the manual selection, else 1). Returns true when
// the pick can be confirmed, false for a cell without a picture.
bool Meca_OK(bool cellHasPicture);

// Cancel: MecaTemplateNo 0 and MecaResult 3.
void Meca_Cancel();

// The state when the window loads: MecaResult 0, MecaTemplateNo 1.
void Meca_Load();
