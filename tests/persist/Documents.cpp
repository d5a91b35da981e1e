#include "tests/persist/Documents.h"

#include "core/Catalogue.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "units/UnitTable.h"

namespace {

void Row_Set(int row, double time, double delta, double speed, double load, double position, double torque,
             double regeneration) {
    Patarn[row] = PatarnRow{time, delta, speed, load, position, torque, regeneration, 3};
}

void Motor_Row(int row, const char* text, double value) {
    Element[0].Item[row].ItemText = text;
    Element[0].Item[row].Value = value;
}

}  // namespace

void Document_Golden() {
    UnitTable[1].Sel = 0;   // lengths in mm
    UnitTable[5].Sel = 1;   // speed in rad/s
    UnitTable[8].Sel = 0;   // inertia in kg.cm2
    UnitTable[10].Sel = 0;  // torque in N.mm
    Template_Fill(1, true);
    ElementCount = MecaTemplateCount[1];
    Element[2].InputMode = 1;
    Element[2].DirectValue = 0.000125;

    Row_Set(1, 0.1, 0.1, 314.0, 0.1, 0.005, 1.25, 0);
    Row_Set(2, 0.6, 0.5, 314.0, 0.1, 0.055, 0.5, 0);
    Row_Set(3, 0.7, 0.1, 0, 0, 0.06, -1.05, kOver);

    MotorSelected = 1;
    Motor_Row(0, "400", 400);
    Motor_Row(1, "3000", 3000);
    Motor_Row(2, "2.63E-5", 2.63e-5);
    Motor_Row(3, "1.27", 1.27);
    Motor_Row(4, "4.46", 4.46);
    Motor_Row(5, "30", 30);
    Motor_Row(6, "0.5E-5", 0.5e-5);
    Motor_Row(7, "1.6", 1.6);
    Motor_Row(8, "18", 18);
    Motor_Row(9, "12", 12);
    MotorModelText = "TV-M400A-B";
    MotorComment = "Brake, straight shaft";
    DriverModelText = "TV-D04";
    DriverComment = "Regeneration resistor built in";

    PRINTINFO.PrintInfoSet = 1;
    PRINTINFO.cstCorporation = "Acme Works";
    PRINTINFO.cstUnit1 = "Assembly";
    PRINTINFO.cstUnit2 = "Line 3";
    PRINTINFO.cstName = "R. Doe";
    PRINTINFO.Corporation = "Torvane Drives";
    PRINTINFO.Unit1 = "Applications";
    PRINTINFO.Unit2 = "Sizing";
    PRINTINFO.Name = "J. Lef\xE8vre";  // Windows-1252 e grave
    PRINTINFO.TelNo = "+1 555 0100";
    PRINTINFO.FaxNo = "+1 555 0101";
    PRINTINFO.Mail = "sizing@example.com";
    PRINTINFO.System = "Pick and place, axis X";
    PRINTINFO.InfoMotorModel = "TV-M400A-B";
    PRINTINFO.InfoDriverModel = "TV-D04";
    PRINTINFO.ConData = "TV-C1";
    for (int i = 0; i < 6; ++i) PRINTINFO.PrintLine[i] = "Line " + std::to_string(i + 1);
    PRINTINFO.PrintComment = "Checked at 20 degrees C.";
    PRINTINFO.PrintOption = {1, 1, 0, 1};
}

std::string TestData(const std::string& name) { return std::string(TORVANE_SOURCE_DIR) + "/tests/data/" + name; }
