#include "commands/ChainCommands.h"

#include "base/MsgBox.h"
#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/Chain.h"
#include "core/Tables.h"

bool Chain_Drop(int16_t p, int16_t type) {
    DragType = type;
    const int16_t r = Chain_PlaceCheck(p);
    if (r == -2) return false;
    if (r == -1) {
        MsgBox("Cannot insert/overwrite.", "Add Component", MsgIcon::Exclamation);
        return false;
    }
    DirtyFlag = 1;
    if (r == 0) Chain_OpenSlot(p);
    Chain_SetSlot(p);
    Culcurate_All();
    return true;
}

bool Chain_Append(int16_t type) {
    DragType = type;
    if (Chain_PlaceCheck(ElementCount) == -1) {
        MsgBox("Cannot be connected.", "Connection", MsgIcon::Exclamation);
        return false;
    }
    DirtyFlag = 1;
    const int16_t last = static_cast<int16_t>(ElementCount - 1);
    Element[last].ElementType = DragType;
    Item_Defaults(DragType, Element[last].Item);
    SelectedElement = last;
    Culcurate_All();
    return true;
}

bool Chain_Delete() {
    const int16_t r = Chain_DeleteCheck(SelectedElement);
    if (r == -2) return false;
    if (r != 0) {
        MsgBox("Cannot delete.", "Delete Component", MsgIcon::Exclamation);
        return false;
    }
    DirtyFlag = 1;
    Chain_CloseSlot();
    Culcurate_All();
    return true;
}
