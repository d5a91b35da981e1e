#include "common/ui/ColumnFit.h"

#include <QEvent>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>
#include <numeric>

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr double kNarrowest = 0.7;  // of the layout's widths, when the grid is small

}  // namespace

ColumnFit::ColumnFit(QTableWidget* grid, std::vector<int> twips) : QObject(grid), grid_(grid), twips_(std::move(twips)) {
    grid_->viewport()->installEventFilter(this);
    Fit();
}

bool ColumnFit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) Fit();
    return QObject::eventFilter(watched, event);
}

// The layout's proportions over the whole width, down to a readable narrowest.
void ColumnFit::Fit() {
    const int total = std::accumulate(twips_.begin(), twips_.end(), 0);
    const int room = grid_->viewport()->width();
    const double scale = std::max(kNarrowest, room * static_cast<double>(kTwipsPerPixel) / total);
    int used = 0;
    const int last = static_cast<int>(twips_.size()) - 1;
    for (int c = 0; c < last; ++c) {
        const int width = static_cast<int>(twips_[c] * scale / kTwipsPerPixel);
        grid_->setColumnWidth(c, width);
        used += width;
    }
    grid_->setColumnWidth(last, std::max(static_cast<int>(twips_[last] * scale / kTwipsPerPixel), room - used));
}
