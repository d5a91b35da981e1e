#include "core/Document.h"

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "core/Templates.h"

void Disp_Reset() {
    Element.fill(ElementRecord{});
    for (int slot = 0; slot <= 19; ++slot) {
        Element[slot].ElementType = MecaTemplate[slot][0];
        Element[slot].InputMode = 0;
        Item_Defaults(Element[slot].ElementType, Element[slot].Item);
    }
    ElementCount = 1;
    Patarn.fill(PatarnRow{});
    PatternRowCount = 0;
    for (auto& record : ResultValues) record.fill(0);
    MotorSelected = 0;
    DirtyFlag = 0;
    SelectedJm = SelectedJb = SelectedMotorMass = 0;
    CandidateJm = CandidateJb = CandidateMotorMass = 0;
    PRINTINFO = PrintInfoRecord{};
    PRINTINFO.PrintOption = {1, 0, 1, 0};
    MotorModelText = "";
    MotorComment = "";
    DriverModelText = "";
    DriverComment = "";
}

void Template_Fill(int16_t number, bool format) {
    if (number < 0 || number >= kTemplates) number = 0;
    for (int slot = 0; slot <= 19; ++slot) {
        ElementRecord& e = Element[slot];
        e.ElementType = MecaTemplate[slot][number];
        Item_Defaults(e.ElementType, e.Item);
        if (format) Item_Format(e);
    }
}
