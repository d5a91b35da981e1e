#include "reports/ParamValue.h"

#include "calc/Cart.h"
#include "calc/mdlCulcurate.h"

namespace {

bool IsCart(int16_t type) { return type == kTypeCart || type == kTypePinionCart; }

double RowValue(int16_t index, int row) { return Element[index].Item[row].Value; }

}  // namespace

double Results_MotorMass() { return Element[0].Item[7].Value; }

double Results_M1(int16_t type, const ParamRecord& param) {
    return IsCart(type) ? param.m1 + Results_MotorMass() : param.m1;
}

bool Results_NamedValue(std::string_view name, int16_t type, int16_t index, const ParamRecord& param,
                        double& value) {
    const double motorMass = Results_MotorMass();
    if (name == "inert0") value = param.inert0;
    else if (name == "inert1") value = param.inert1;
    else if (name == "ratio") value = param.ratio;
    else if (name == "eff") value = param.eff;
    else if (name == "exforce") value = param.exforce;
    else if (name == "fric") value = param.fric;
    else if (name == "m1") value = Results_M1(type, param);
    else if (name == "m2") value = param.m2;
    else if (name == "m3") value = param.m3;
    else if (name == "m_all")
        value = type == kTypeCart ? param.m1 + motorMass + param.m2 : param.m1 + motorMass + param.m2 + param.m3;
    else if (name == "ratio1") value = RowValue(index, 2);
    else if (name == "ratio2") value = RowValue(index, 2) * RowValue(index, type == kTypeCart ? 4 : 7) / 2;
    else if (name == "JL") {
        double mass = motorMass;
        value = Load_Inertia(Element, MotorSelected, mass);
    } else
        return false;
    return true;
}
