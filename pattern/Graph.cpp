#include "pattern/Graph.h"

#include <cmath>

#include "base/Numeric.h"

namespace {

constexpr int kMargin = 100;

int ToInt(double x) { return std::isfinite(x) ? static_cast<int>(Round_Even(x)) : 0; }

double Peak(const PatarnTable& table, int n, double PatarnRow::*field) {
    double peak = 0;
    for (int i = 1; i <= n; ++i) peak = std::fmax(peak, std::fabs(table[i].*field));
    return peak;
}

GraphDrawing WithAxes(int mid, double w, double h) {
    GraphDrawing d;
    if (mid == 9999) return d;
    d.axes = true;
    d.axisX = {kMargin, mid, ToInt(w - kMargin), mid};
    d.axisY = {kMargin, kMargin, kMargin, ToInt(h - kMargin)};
    return d;
}

}  // namespace

int Graph_Mid(double h) { return ToInt(ToInt(h - 2 * kMargin) / 2.0 + kMargin); }

int Graph_X(double time, double tmax, double w) {
    if (tmax == 0) return 0;
    const double x = (w - 2 * kMargin) * time / tmax;
    return std::isfinite(x) ? ToInt(x) + kMargin : 0;
}

int Graph_Y(double value, double peak, int mid) {
    if (value == 0) return mid;
    const double share = std::fabs(value) / peak * (mid - kMargin);
    return value > 0 ? mid - ToInt(share) : mid + ToInt(share);
}

GraphDrawing Graph_Speed(const PatarnTable& table, int n, double w, double h) {
    if (n <= 0) return {};
    const int mid = Graph_Mid(h);
    GraphDrawing d = WithAxes(mid, w, h);
    const double peak = Peak(table, n, &PatarnRow::Speed);
    const double tmax = table[n].Time;
    int x = kMargin, y = mid;
    for (int i = 1; i <= n; ++i) {
        const int nx = Graph_X(table[i].Time, tmax, w), ny = Graph_Y(table[i].Speed, peak, mid);
        d.curve.push_back({x, y, nx, ny});
        x = nx, y = ny;
    }
    return d;
}

GraphDrawing Graph_Torque(const PatarnTable& table, int n, double w, double h) {
    if (n <= 0) return {};
    const int mid = Graph_Mid(h);
    GraphDrawing d = WithAxes(mid, w, h);
    const double peak = Peak(table, n, &PatarnRow::Torque);
    const double tmax = table[n].Time;
    auto xs = [&](int i) { return i == 1 ? kMargin : Graph_X(table[i - 1].Time, tmax, w); };
    auto ys = [&](int i) { return Graph_Y(table[i].Torque, peak, mid); };
    d.curve.push_back({kMargin, mid, xs(1), ys(1)});
    for (int i = 1; i < n; ++i) {
        d.curve.push_back({xs(i), ys(i), xs(i + 1), ys(i)});
        d.curve.push_back({xs(i + 1), ys(i), xs(i + 1), ys(i + 1)});
    }
    d.curve.push_back({xs(n), ys(n), ToInt(w - kMargin), ys(n)});
    return d;
}
