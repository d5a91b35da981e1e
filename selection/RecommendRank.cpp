#include "selection/RecommendRank.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

// Lower ranks first; a missing number ranks after every number.
std::tuple<bool, double> Known(double x) { return {std::isnan(x), std::isnan(x) ? 0 : x}; }

}  // namespace

bool Ranks_Before(const Recommendation& a, const Recommendation& b) {
    const auto key = [](const Recommendation& r) {
        return std::tuple(Known(r.capacity.value_or(std::nan(""))), Known(r.Ratio()), r.verdict != "OK");
    };
    return key(a) < key(b);
}

void Recommend_Rank(std::vector<Recommendation>& pairs, std::size_t top) {
    std::ranges::stable_sort(pairs, Ranks_Before);
    if (pairs.size() > top) pairs.erase(pairs.begin() + static_cast<std::ptrdiff_t>(top), pairs.end());
}
