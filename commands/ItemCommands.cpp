#include "commands/ItemCommands.h"

#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/DirectInput.h"
#include "core/ItemEdit.h"
#include "core/Tables.h"

namespace {

bool InChain(int16_t element) { return element >= 0 && element < kElementSlots; }

}  // namespace

void Item_Select(int16_t element) {
    if (!InChain(element)) return;
    SelectedElement = element;
    if (ElementCount > 1)
        for (int16_t i = 1; i < ElementCount; ++i) Element_Reduce(i, Element[i]);
    Item_Format(Element[element]);
}

bool Item_Edit(int16_t element, int gridRow, std::string& text, bool directInertia) {
    if (!ValidateEdit(element, gridRow, text)) return false;
    ItemEdit_Store(element, gridRow, text, directInertia);
    Culcurate_All();
    return true;
}

void Item_DirectInertia(int16_t element, bool on) {
    if (!InChain(element)) return;
    Direct_Inertia(Element[element], on);
    Culcurate_All();
}

void Item_DirectMass(int16_t element, bool on) {
    if (!InChain(element)) return;
    Direct_Mass(Element[element], on);
    Culcurate_All();
}
