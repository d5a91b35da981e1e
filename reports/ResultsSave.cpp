// A part of reports/mdlFileOutput.h.
#include "core/Tables.h"
#include "reports/ResultsLine.h"
#include "reports/mdlFileOutput.h"

namespace {

constexpr int16_t kFirstSpecialType = 41;

}  // namespace

bool Results_Save(const std::string& fileName) {
    Results_Open(fileName);
    Results_Print(2, "Motor Name   ", false);
    Results_Print(0, ":", false);
    Results_Print(0, MotorModelText.Raw(), true);
    Results_Element();
    if (Element[1].ElementType < kFirstSpecialType) Results_Inertia();
    Results_Torque();
    Results_Interval();
    return Results_Close();
}
