// What the fields of an application file may hold. A file is written by this
// program or by an older one, so anything else is damage: the reader refuses
// such a field rather than let it into the tables, where a chain of 300
// elements or a type without catalogue rows would break the program later.
#pragma once

#include <cstdint>

#include "core/Tables.h"

// Slot 0 holds the motor and no other slot does; the others hold a type of
// the catalogue or the empty slot. The input mode is 0, 1 or 2, and every
// item row is not in use or has a unit its category knows.
bool Element_Valid(int slot, const ElementRecord& element);

// RowState 0 to 3.
bool Row_Valid(const PatarnRow& row);

// The motor and at most nineteen components: 1 to 20.
bool Count_Valid(int16_t count);

// 0 or 1; 2 exists only inside a candidate's calculation.
bool MotorSelected_Valid(int16_t selected);

// A unit the category has.
bool Sel_Valid(int kind, int16_t sel);
