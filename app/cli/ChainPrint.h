// The chain of the open document as the command line tool prints it.
#pragma once

#include <ostream>

// Per element its slot, type code and label, and per used row the name, the
// unit, the text and the value, in readable columns.
void Chain_PrintText(std::ostream& out);

// The same as a JSON array of elements.
void Chain_PrintJson(std::ostream& out);
