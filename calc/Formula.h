// What every formula of the calculation works with: the values p0 to p12 of
// an element's parameter rows, and the square.
#pragma once

#include <array>

#include "core/Tables.h"

using ItemValues = std::array<double, 13>;

inline ItemValues Item_P(const ElementRecord& element) {
    ItemValues p{};
    for (std::size_t i = 0; i < p.size(); ++i) p[i] = element.Item[i].Value;
    return p;
}

// x^2, taken before the products around it.
inline double Sq(double x) { return x * x; }
