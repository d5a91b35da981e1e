// The open document as the size command prints it.
#pragma once

#include <ostream>

// The chain in the units of its rows, the pattern rows in the picked units
// and the seven sizing values with rating, rated ratio and verdict; a value
// that could not be computed shows as "OVER".
void Size_PrintText(std::ostream& out);

// The document's numbers as JSON, all in base units with 17 significant
// digits: the scalars, Param(1) to Param(ElementCount), the elements in use,
// the twenty pattern rows and the four result records.
void Size_PrintJson(std::ostream& out);
