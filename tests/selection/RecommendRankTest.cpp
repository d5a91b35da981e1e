// The order of recommended pairs (selection/RecommendRank): capacity, then the tightest ratio, then the verdict.
#include "selection/RecommendRank.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace {

// A pair whose tightest limit, the speed, takes the given ratio; NaN for none known.
Recommendation Pair(const std::string& motor, std::optional<double> capacity, double ratio,
                    std::string_view verdict = "OK") {
    Recommendation r;
    r.motor = motor;
    r.capacity = capacity;
    r.verdict = verdict;
    r.ratios.fill(std::nan(""));
    r.ratios[3] = ratio;
    r.tightest = std::isnan(ratio) ? -1 : 3;
    return r;
}

std::vector<std::string> Ranked(std::vector<Recommendation> pairs, std::size_t top = 10) {
    Recommend_Rank(pairs, top);
    std::vector<std::string> names;
    for (const Recommendation& r : pairs) names.push_back(r.motor);
    return names;
}

TEST(RecommendRank, TheSmallestCapacityFirstAndABlankOneLast) {
    EXPECT_EQ(Ranked({Pair("blank", std::nullopt, 0.1), Pair("big", 1000, 0.9), Pair("small", 100, 0.9)}),
              (std::vector<std::string>{"small", "big", "blank"}));
}

TEST(RecommendRank, OnOneCapacityTheLowerTightestRatioFirstAndAnUnknownOneLast) {
    EXPECT_EQ(Ranked({Pair("unknown", 200, std::nan("")), Pair("tight", 200, 0.95), Pair("roomy", 200, 0.3)}),
              (std::vector<std::string>{"roomy", "tight", "unknown"}));
}

TEST(RecommendRank, OnOneCapacityAndRatioOkBeforeFairAndOtherwiseTheCatalogueOrder) {
    EXPECT_EQ(Ranked({Pair("fair", 200, 0.5, "FAIR"), Pair("first", 200, 0.5), Pair("second", 200, 0.5)}),
              (std::vector<std::string>{"first", "second", "fair"}));
    EXPECT_FALSE(Ranks_Before(Pair("a", 200, 0.5), Pair("b", 200, 0.5)));
}

TEST(RecommendRank, TopKeepsTheFirstPairs) {
    EXPECT_EQ(Ranked({Pair("c", 300, 0.5), Pair("a", 100, 0.5), Pair("b", 200, 0.5)}, 2),
              (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(Ranked({}, 3).empty());
}

}  // namespace
