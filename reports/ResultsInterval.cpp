// A part of reports/mdlFileOutput.h.
#include <string>

#include "base/NumberFormat.h"
#include "calc/Cart.h"
#include "calc/mdlCulcurate.h"
#include "core/Tables.h"
#include "reports/ParamValue.h"
#include "reports/ResultsLine.h"
#include "reports/ResultsText.h"
#include "reports/mdlFileOutput.h"

namespace {

void Print_Head() {
    Results_Print(0, "", true);
    Results_Print(4, "Interval", false);
    Results_Print(0, "|", false);
    Results_Print(4, "v1", false);
    Results_Print(4, "|", false);
    Results_Print(4, "v2", false);
    Results_Print(4, "|", false);
    Results_Print(1, "Time Interval", false);
    Results_Print(1, "|", false);
    Results_Print(0, "Acceleration/Deceleration Torque", false);
    Results_Print(1, "|", false);
    Results_Print(1, "External Torque", false);
    Results_Print(2, "|", false);
    Results_Print(1, "Friction Torque", false);
    Results_Print(2, "|", false);
    Results_Print(2, "Torque", false);
    Results_Print(2, "|", false);
    Results_Print(4, "", false);
    Results_Print(2, "Regeneration", true);
    Results_Print(4, std::string(148, '-'), true);
}

// A number right-aligned in its column, and the bar.
void Print_Cell(const std::string& text, int column) {
    Results_Print(Results_Pad(text, column), text, false);
    Results_Print(0, "|", false);
}

// The regeneration worked out with the Torque stored in the row, and with
// "3.14" where the formula says PI.
void Print_Regeneration(int i) {
    const PatarnRow& row = Patarn[i];
    if (!(row.Regeneration > 0)) {
        Results_Print(0, "Not Exist R=0", true);
        return;
    }
    std::string text = "Exist R=ABS((" + NumberText(Patarn[i - 1].Speed);
    text += row.Speed < 0 ? "+(" + NumberText(row.Speed) + "))/2*" : "+" + NumberText(row.Speed) + ")/2*";
    text += NumberText(row.Torque) + "*" + NumberText(row.DeltaTime) + "*2*3.14/60)";
    Results_Print(0, text, true);
    Results_Print(4, "", false);
    for (const int width : {8, 10, 10, 15, 33, 18, 18, 10}) Results_Print(width, "|", false);
    Results_Print(5, "=" + NumberText(row.Regeneration), true);
}

}  // namespace

void Results_Interval() {
    Print_Head();
    // T and R keep the values of the interval before when a routine refuses
    // one, and the parts those of the last interval computed by anyone.
    double T = 0, R = 0;
    for (int i = 1; i <= PatternRowCount; ++i) {
        const std::string number = std::to_string(i);
        Results_Print(Results_Pad(number, 5) + 4, number, false);
        Results_Print(0, "|", false);
        const PatarnRow& row = Patarn[i];
        const double v1 = Patarn[i - 1].Speed;
        Print_Cell(NumberText(v1), 6);
        Print_Cell(NumberText(row.Speed), 7);
        Print_Cell(NumberText(row.DeltaTime), 8);
        const int16_t first = Element[1].ElementType;
        if (first == kTypeCart || first == kTypePinionCart)
            Special_Torque(Element[1], row.DeltaTime, v1, row.Speed, Results_MotorMass(), SelectedJm, T, R);
        else
            Interval_Torque(static_cast<int16_t>(ElementCount - 1), row.DeltaTime, v1, row.Speed, SelectedJm, T, R);
        double acc = 0, ex = 0, fric = 0;
        Torque_Parts(acc, ex, fric);
        Print_Cell(TorqueText(acc), 9);
        Print_Cell(TorqueText(ex), 10);
        Print_Cell(TorqueText(fric), 11);
        Print_Cell(TorqueText(T), 12);
        Print_Regeneration(i);
    }
}
