// Placing and deleting components on the chain strip, with their messages,
// the dirty mark and the recalculation.
#pragma once

#include <cstdint>

// A component of the type dropped at chain position p. True when the chain
// changed.
bool Chain_Drop(int16_t p, int16_t type);

// The palette's double click: a component of the type at the end of the
// chain. True when it was added; "Cannot be connected." otherwise.
bool Chain_Append(int16_t type);

// Delete Component: the selected element. True when the chain changed.
bool Chain_Delete();
