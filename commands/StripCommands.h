// The chain strip of the main window without its window: which element a
// click or an arrow key selects, and which part of the chain the strip shows.
// The strip shows kStripSlots slots from FirstVisible on.
#pragma once

#include <cstdint>

inline constexpr int kStripSlots = 8;

// A click on the slot (0 to kStripSlots - 1): SelectedElement becomes the
// component shown there, or 0 (nothing) for the motor or an empty slot.
void Strip_Click(int slot);

// The strip scrolled to show the chain from the element first on.
void Strip_Scroll(int first);

// The slot that shows the selected element when the strip starts at first,
// or -1 when nothing is selected or it lies outside.
int Strip_SelectedSlot(int first);

// Where the strip must start, from first, to show the selected element.
int Strip_FirstShowing(int first);

// The left arrow selects the component before; on the first one it selects
// nothing new and answers true: the strip scrolls home instead.
bool Strip_Left();

// The right arrow selects the component after, up to the last.
void Strip_Right();
