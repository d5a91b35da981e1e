#include "app/cli/RecommendPrint.h"

#include <cmath>
#include <string>

#include "app/cli/GridPrint.h"
#include "app/cli/Json.h"
#include "selection/MotorJudge.h"
#include "selection/RecommendGrid.h"

void Recommend_PrintText(const RecommendResult& result, std::ostream& out) {
    Grid_PrintText(Recommend_Grid(result.pairs), out);
    if (result.pairs.empty()) out << kNothingPasses << '\n';
    out << "Skipped catalogue rows: " << result.skipped << '\n';
}

void Recommend_PrintJson(const RecommendResult& result, std::ostream& out) {
    out << "{\"results\":[";
    for (std::size_t i = 0; i < result.pairs.size(); ++i) {
        const Recommendation& pair = result.pairs[i];
        out << (i ? "," : "") << "{\"series\":" << Json_String(pair.series) << ",\"model\":" << Json_String(pair.model)
            << ",\"motor\":" << Json_String(pair.motor) << ",\"driver\":" << Json_String(pair.driver)
            << ",\"capacity\":" << (pair.capacity ? Json_Number(*pair.capacity) : "null")
            << ",\"verdict\":" << Json_String(pair.verdict) << ",\"tightest\":"
            << (pair.tightest < 0 ? "null" : Json_String(kLimitNames[pair.tightest].key))
            << ",\"ratio\":" << Json_Number(pair.Ratio()) << ",\"ratios\":{";
        for (std::size_t r = 0; r < kLimitNames.size(); ++r)
            out << (r ? "," : "") << Json_String(kLimitNames[r].key) << ':' << Json_Number(pair.ratios[r]);
        out << "}}";
    }
    out << "],\"skipped\":" << result.skipped << "}\n";
}
