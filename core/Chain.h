// The rules of the chain: where a component may be placed or deleted, and what
// a placement or deletion does to the element table.
#pragma once

#include <array>
#include <cstdint>

#include "core/Tables.h"

// May DragType go into the slot? 0 insert, 1 write into the slot, -1 refused,
// -2 the user declined. On 0, and on 1 into an empty slot, ElementCount is
// already raised on return. InsertAnswer is always 0 afterwards.
int16_t Chain_PlaceCheck(int16_t slot);

// Moves the elements from the slot on one slot toward the end.
void Chain_OpenSlot(int16_t slot);

// Puts DragType with its defaults into the slot and selects it.
void Chain_SetSlot(int16_t slot);

// May the element in the slot be deleted? 0 yes, -1 refused, -2 declined.
int16_t Chain_DeleteCheck(int16_t slot);

// Deletes the selected element and closes the gap.
void Chain_CloseSlot();

// 1 when the output of the last element rotates, else 0.
int16_t Load_Motion(const std::array<ElementRecord, kElementSlots>& elements);
