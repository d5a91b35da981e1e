// A new, empty document in the global tables.
#pragma once

#include <cstdint>

// Clears the document: the chain to the motor alone with catalogue defaults,
// the pattern, the sizing values, the chosen motor and the report texts.
// LoadInertiaTotal and TotalRatio keep their values.
void Disp_Reset();

// The chain of a template: each slot 0 to 19 takes the template's type and
// its defaults, formatted when format is true. A number that is no template
// gives the hand selection.
void Template_Fill(int16_t number, bool format);
