// The commands of the component settings: picking an element to show, an
// edit of one of its rows, and the two direct-input boxes. Each runs the
// calculation that follows it; the window then only redraws.
#pragma once

#include <cstdint>
#include <string>

// The element becomes the selected one: with more than the motor in the
// chain the components are reduced from the motor outward, and the rows of
// the element are rewritten from their values.
void Item_Select(int16_t element);

// An edit of grid row 1..14 of the element: checked (with its message on a
// refusal), stored and recalculated. text becomes what the cell keeps. False
// when refused, and nothing changed.
bool Item_Edit(int16_t element, int gridRow, std::string& text, bool directInertia);

// The boxes "Direct inertia input" and "Direct mass input" of the element
// clicked to on or off; the document's changed mark is left alone.
void Item_DirectInertia(int16_t element, bool on);
void Item_DirectMass(int16_t element, bool on);
