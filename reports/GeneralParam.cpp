#include "reports/GeneralParam.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "base/NumberFormat.h"
#include "calc/Cart.h"
#include "calc/mdlCulcurate.h"
#include "core/HistoryLog.h"
#include "reports/ParamIni.h"
#include "reports/ParamValue.h"
#include "reports/ResultsLine.h"
#include "reports/Substitute.h"

namespace {

constexpr int kItemIndent = 12;

// Form A: a mass entered directly. Only "m1" is told apart; every other
// mass item shows m2.
void Print_DirectMass(const std::string& item, const ParamRecord& param) {
    Results_Print(kItemIndent, "Direct mass input", true);
    Results_Print(kItemIndent, item.substr(0, 3), true);
    Results_Print(kItemIndent + 2, "=" + NumberText(item.starts_with("m1") ? param.m1 : param.m2), true);
}

// Form B: an inertia entered directly.
void Print_DirectInertia(const std::string& item, const ParamRecord& param) {
    Results_Print(kItemIndent, "Direct inertia input", true);
    Results_Print(kItemIndent, item.substr(0, 7), true);
    Results_Print(kItemIndent + 6, "=" + NumberText(param.inert0), true);
}

// The load inertia item of a cart (its sixth item) or a pinion-driven cart
// (its seventh) is not taken from the file for its second line.
bool Is_LoadInertiaItem(int16_t type, int k) {
    return (type == kTypeCart && k == 6) || (type == kTypePinionCart && k == 7);
}

std::string LoadInertiaLine(int16_t type, int16_t index, const ParamRecord& p) {
    const double mass = Results_MotorMass();
    const auto row = [index](int n) { return NumberText(Element[index].Item[n].Value); };
    if (type == kTypeCart)
        return "JL=" + NumberText(p.ratio) + "^2*" + NumberText(p.m1 + mass + p.m2) + "+" + row(2) + "^2*" +
               NumberText(p.m2) + "*" + row(4) + "^2/8";
    return "JL=" + NumberText(p.ratio) + "^2*" + NumberText(p.m1 + mass + p.m2 + p.m3) + "+" + row(2) + "^2*(" +
           NumberText(p.m2) + "*" + row(4) + "^2/8+" + NumberText(p.m3) + "*" + row(7) + "^2/8)";
}

// Form C: the item, the item with its numbers, and the value of its name.
// An item without "=" keeps the name of the item before it.
void Print_Formula(const std::string& item, int k, int16_t type, int16_t index, const ParamRecord& param,
                   std::string& name) {
    Results_Print(kItemIndent, item, true);
    const auto equals = item.find('=');
    const std::size_t split = equals == std::string::npos ? 0 : equals + 1;
    std::string right = item.substr(split);
    Results_Substitute(right, type, index, param);
    const std::string line =
        Is_LoadInertiaItem(type, k) ? LoadInertiaLine(type, index, param) : item.substr(0, split) + right;
    Results_Print(kItemIndent, line, true);
    if (equals == std::string::npos)
        Results_LogError(kErrInvalidCall);
    else
        name = item.substr(0, equals);
    double value = 0;
    if (Results_NamedValue(name, type, index, param, value))
        Results_Print(Results_ValueColumn(item), "=" + NumberText(value), true);
}

constexpr int kMostItems = 99;

}  // namespace

int16_t Results_GeneralParam(int16_t type, int16_t index) {
    Results_Print(8, "", true);
    Results_Print(8, "<Calculation Values for General Parameters>", true);
    const std::string path = ParamIni_Path();
    if (!std::filesystem::exists(path)) History_Append(History_Path(), "File(Setting) was not found");
    const std::string section = std::to_string(type);
    // A block never holds more items than this; a broken count reads no further.
    const int count = std::min(ParamIni_Int(path, section, "Set0"), kMostItems);
    ParamRecord param{};
    Param_Get(index, param);
    const ElementRecord& element = Element[index];
    std::string name;
    for (int k = 1; k <= count; ++k) {
        const std::string item = ParamIni_String(path, section, "Set" + std::to_string(k));
        if (item.empty()) History_Append(History_SiblingPath(), "An item has not been input(Setting File)");
        if (element.InputMode == 2 && item.starts_with("m"))
            Print_DirectMass(item, param);
        else if (element.InputMode == 1 && item.starts_with("inert0"))
            Print_DirectInertia(item, param);
        else
            Print_Formula(item, k, type, index, param, name);
    }
    return 0;
}

int16_t Results_ValueColumn(std::string_view item) {
    const auto equals = item.find('=');
    return static_cast<int16_t>((equals == std::string_view::npos ? 0 : equals + 1) + 11);
}
