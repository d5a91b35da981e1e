// The commands of the pattern grid that need no window: storing an edited
// cell with everything it drives, inserting and deleting rows.
#pragma once

#include <cstdint>
#include <string>

#include "core/Tables.h"

// Stores value, in the picked unit of column col (1 to 5), into the record of
// grid row gridRow (2..21) of the table, with the fields it drives, as a
// committed cell does. Any other row or column stores nothing.
void Patarn_StoreCell(PatarnTable& table, int gridRow, int col, double value);

// The recalculation that follows every change of the rows: the sizing, the
// count of complete rows, the splits at zero speed, and the sizing again.
void Patarn_Recalculate();

// What the after-edit step did with the text of the cell.
enum class PatternEdit {
    Stored,   // stored (or nothing to store) and recalculated
    Skipped,  // an empty text, or an escape: nothing stored, the cell stays as it is
    Refused,  // not a number: "Illegal input value.", nothing stored; the cell shows the table again
};

// After the edit of grid row gridRow (2..21), column col, whose cell now
// holds text. An empty text stores nothing; a pending escape is cleared and
// stores nothing. A text that the editor's keys let through but that is no
// number ("1-2") is refused with "Illegal input value." and stores nothing.
// Row 0 or column 0 skip the storing and only recalculate.
PatternEdit Patarn_AfterEdit(int gridRow, int col, const std::string& text, int16_t& escapePending);

// Deletes the block of grid rows low..high. False when nothing happened: a
// block above the first row, or a refusal ("Some data cannot be deleted.")
// because the speeds around the block would change sign in one row.
bool Patarn_DeleteRows(int low, int high);
