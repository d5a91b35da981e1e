// The order of recommended pairs: the smallest motor first, and among motors
// of one capacity the one with the most room left.
#pragma once

#include <cstddef>
#include <vector>

#include "selection/Recommend.h"

// By capacity, the smallest first and a blank one after every given one;
// then by the ratio of the tightest limit, the lowest first and an unknown
// one last; then "OK" before "FAIR".
bool Ranks_Before(const Recommendation& a, const Recommendation& b);

// Sorts the pairs by Ranks_Before, equal ones keeping their order, and keeps
// the first top.
void Recommend_Rank(std::vector<Recommendation>& pairs, std::size_t top);
