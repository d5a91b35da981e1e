// A wizard grid as the command line tool prints it: aligned text columns, or
// JSON with every cell's text, weight and colour.
#pragma once

#include <ostream>

#include "selection/Grid.h"

// The header rows, then one line per row. A marked data cell ends in "!"
// when red and "~" when orange; column 0 holds the verdict itself.
void Grid_PrintText(const Grid& grid, std::ostream& out);

// {"captions":[...],"units":[...],"rows":[[{"text":..,"bold":..,"color":..},...],...]}
void Grid_PrintJson(const Grid& grid, std::ostream& out);
