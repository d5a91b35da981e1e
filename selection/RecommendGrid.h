// The recommended pairs as a grid, the window's table and the command
// line's text: two header rows, then one row per pair, best first.
#pragma once

#include <array>
#include <vector>

#include "selection/Grid.h"
#include "selection/Recommend.h"

inline constexpr int kRecommendCols = 8;
extern const std::array<GridColumn, kRecommendCols> kRecommendColumns;

// Column 0 the verdict, bold in its colour, then series, model group,
// motor, driver, capacity, the tightest limit and its ratio.
Grid Recommend_Grid(const std::vector<Recommendation>& pairs);
