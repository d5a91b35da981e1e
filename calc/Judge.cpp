// A part of calc/mdlCulcurate.h.
// The verdicts of the sizing values against the chosen motor and driver.
#include <array>

#include "base/Numeric.h"
#include "calc/Mark.h"
#include "calc/mdlCulcurate.h"

namespace {

constexpr int kValues = 7;
constexpr int16_t kAllowableRateRow = 5;

enum Verdict { kNoRating = 0, kOk = 1, kFair = 2, kNg = 3 };

// The limits of a rate: at or below ok is OK; up to fair, where there is
// one, FAIR; above, NG.
struct Band {
    double ok;
    double fair;  // 0: no FAIR band
};

// A rate equal to a limit in single precision is on the good side of it.
bool At_Or_Below(double rate, double limit) { return Same_Single(rate, limit) || rate < limit; }

// A value that could not be computed passes; the display shows it as "OVER".
Verdict Judge(double rate, Band band) {
    if (Is_Marked(rate) || At_Or_Below(rate, band.ok)) return kOk;
    if (band.fair != 0 && At_Or_Below(rate, band.fair)) return kFair;
    return kNg;
}

// The inertia ratio is held against the motor's own limit, "Allowable
// inertia rate" of the motor's rows, read as a whole number.
double Allowable_Inertia_Rate() { return Round_Even(Val(Element[0].Item[kAllowableRateRow].ItemText.Raw())); }

}  // namespace

void Judge_Results(ResultTable& results) {
    for (int j = 0; j < kValues; ++j) results[Ratio][j] = Safe_Rate(results[Cul][j], results[Rate][j]);
    const std::array<Band, kValues> bands = {{
        {0.8, 1.0},  // EffectiveTorque
        {0.8, 1.0},  // MaxTorque
        {1.0, 0},    // MaxRotationalSpeed
        {0, 0},      // Inertia: the motor's limit, below
        {1.0, 0},    // Regeneration1
        {1.0, 0},    // Regeneration2
        {0.7, 0},    // StoppingTorque
    }};
    for (int j = 0; j < kValues; ++j) {
        if (results[Rate][j] == 0) {
            results[Hantei][j] = kNoRating;
            continue;
        }
        const Band band = j == Inertia ? Band{Allowable_Inertia_Rate(), 0} : bands[j];
        results[Hantei][j] = Judge(results[Ratio][j], band);
    }
}
