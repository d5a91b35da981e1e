// The recommendation: every motor of every series and model group of the
// catalogue judged against the application as the motor page judges it,
// each motor that passes paired with each of its drivers that passes on
// regeneration as the driver page judges it, and the pairs ranked so that
// the smallest motor comes first.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view kTitleRecommend = "Recommend";
inline constexpr std::string_view kNothingPasses = "No motor and driver of the catalogue pass.";

struct Recommendation {
    std::string series, model, motor, driver;  // as the catalogue names them
    // Where the motor page finds the motor: the positions of its series and
    // model group in the lists and its grid row.
    int seriesIndex = 0, modelIndex = 0, row = 0;
    std::optional<double> capacity;  // W; none when the catalogue leaves it blank
    std::string_view verdict;        // "OK", or "FAIR" when the motor or the driver is
    std::array<double, 5> ratios{};  // Motor_Utilisation, NaN where the motor has no datum
    int tightest = -1;               // index of the largest known ratio; -1 when none is known

    // The ratio of the tightest limit; NaN when none is known.
    double Ratio() const;
};

struct RecommendOptions {
    bool includeFair = false;  // pass "FAIR" motors and drivers too
    std::size_t top = 10;      // the number of pairs kept
};

struct RecommendResult {
    std::vector<Recommendation> pairs;  // best first
    int skipped = 0;  // catalogue rows whose judgement ends with a run-time failure
};

// Runs over the catalogue of SeriesConnection, which must be open; without
// a complete pattern row nothing passes. The trial calculation works on a
// table of its own: Patarn, PatarnTrial, ResultValues, the selection and
// the row sets and lists of the wizard stay as they are. A motor row, or a
// driver row of a motor, whose judgement fails at run time is skipped and
// counted.
RecommendResult Recommend(const RecommendOptions& options);
