#include "reports/ResultsText.h"

#include <array>

#include "base/NumberFormat.h"

std::string_view Results_UnitText(int16_t unitKind) {
    static constexpr std::array<std::string_view, 13> kTexts = {
        "s", "m", "m", "rad", "m/s", "r/min", "rad/s", "kg", "kg\xB7m\xB2", "N", "N\xB7m", "-", "gcm\xB3"};
    if (unitKind < 0 || unitKind >= static_cast<int16_t>(kTexts.size())) return "-";
    return kTexts[static_cast<std::size_t>(unitKind)];
}

std::string TorqueText(double x) { return Format_Mask(x, kMaskSci4); }
