#include "commands/UnitCommands.h"

#include <algorithm>

#include "base/MsgBox.h"
#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/UnitFile.h"

UnitPicks Unit_Picks() {
    UnitPicks picks{};
    for (int k = 0; k < kUnitCategories; ++k) picks[k] = UnitTable[k].Sel;
    return picks;
}

void Unit_Apply(const UnitPicks& picks) {
    for (int k = 0; k < kUnitCategories; ++k) UnitTable[k].Sel = picks[k];
    // A file that cannot be written is told; the picks hold for this session all the same.
    try {
        Unit_Save();
    } catch (const RuntimeError& e) {
        MsgBox(e.what(), "Unit Selections", MsgIcon::Exclamation);
    }
    // Slot ElementCount is the empty one behind the chain; it goes along.
    const int last = std::min<int>(ElementCount, kElementSlots - 1);
    for (int e = 0; e <= last; ++e)
        for (ElementItem& item : Element[e].Item) item.UnitIndex = Unit_Map(item.UnitKind, item.UnitIndex);
    for (int e = 0; e <= last; ++e) Item_Format(Element[e]);
    double mass = SelectedMotorMass;
    const double inertia = Load_Inertia(Element, MotorSelected, mass);
    if (inertia != -1) ResultValues[Cul][Inertia] = inertia;
    DirtyFlag = 1;
}
