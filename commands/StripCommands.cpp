#include "commands/StripCommands.h"

#include "core/Tables.h"

void Strip_Click(int slot) {
    const int p = FirstVisible + slot;
    SelectedElement = static_cast<int16_t>(p >= 1 && p < ElementCount ? p : 0);
}

void Strip_Scroll(int first) { FirstVisible = static_cast<int16_t>(first); }

int Strip_SelectedSlot(int first) {
    const int slot = SelectedElement - first;
    return SelectedElement != 0 && slot >= 0 && slot < kStripSlots ? slot : -1;
}

int Strip_FirstShowing(int first) {
    if (SelectedElement < first) return SelectedElement;
    if (SelectedElement > first + kStripSlots - 1) return SelectedElement - (kStripSlots - 1);
    return first;
}

bool Strip_Left() {
    if (SelectedElement <= 1) return true;
    --SelectedElement;
    return false;
}

void Strip_Right() {
    if (SelectedElement < ElementCount - 1) ++SelectedElement;
}
