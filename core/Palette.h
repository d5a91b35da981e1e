// The component palette without its window: five tabs of ten cells, the type
// code of each cell, and the cell the arrow keys lead to.
#pragma once

#include <cstdint>
#include <string_view>

inline constexpr int kPaletteTabs = 5;
inline constexpr int kPaletteCells = 10;

// Caption of tab 1..5.
std::string_view Palette_TabCaption(int tab);

// The type code of cell 0..9 of tab 1..5.
int16_t Palette_Type(int tab, int cell);

// Keys of a palette cell, by their codes.
enum class PaletteKey : int { Enter = 13, Left = 37, Up = 38, Right = 39, Down = 40, Delete = 46 };

// The cell the key leads to from a cell: arrows move and wrap within the two
// rows of five; Enter stays; Delete and any other key go to cell 0.
int Palette_NextCell(int cell, int keyCode);
