// The rules of a cell of the pattern grid while it is edited: whether it may
// be edited, and whether the typed text passes, cut to the column's
// precision by truncation. Grid rows 2 to 21 show records 1 to 20.
#pragma once

#include <cstdint>
#include <string>

// May the cell enter edit? Column 6 never; column 5 only after a complete row.
bool Patarn_MayEdit(int gridRow, int col);

// Keeps only the keys the editor accepts: digits, backspace, '-', '.', ',',
// carriage return.
bool Patarn_KeyAllowed(int key);

// The text cut to the precision of the column and formatted with its mask.
std::string Patarn_Trim(int col, const std::string& text);

// Whether a value of column 1 (time) or 2 (interval), cut to the column's
// precision, may stand: a time after 0 and after above, the time of the row
// above (0 for the first row); an interval above 0. Other columns pass; the
// position has rules of its own that read the rows.
bool Patarn_ValueAllowed(int col, double value, double above);

struct CellCheck {
    bool cancel = false;  // the edit stays open (or is dropped, with escape)
    std::string text;     // the editor's text afterwards
};

// Validates the editor's text. cellAbove is the text of the same column in
// the grid row above. A refusal shows "Illegal input value." and cancels.
CellCheck Patarn_Validate(int gridRow, int col, const std::string& text, const std::string& cellAbove,
                          int16_t escapePending);
