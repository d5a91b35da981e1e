// The recommended pairs as the command line tool prints them.
#pragma once

#include <ostream>

#include "selection/Recommend.h"

// The grid of the pairs, then the count of the catalogue rows skipped.
void Recommend_PrintText(const RecommendResult& result, std::ostream& out);

// {"results": [{"series", "model", "motor", "driver", "capacity", "verdict",
// "tightest", "ratio", "ratios": {...}}, ...], "skipped": N}, best first; a
// blank capacity and an unknown ratio are null, and so is "tightest" when
// no ratio is known.
void Recommend_PrintJson(const RecommendResult& result, std::ostream& out);
