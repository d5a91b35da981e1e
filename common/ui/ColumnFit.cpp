#include "common/ui/ColumnFit.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>
#include <algorithm>
#include <numeric>

#include "common/ui/ClippedTips.h"

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr double kNarrowest = 0.7;  // of the layout's widths, when the grid is small

int Sum(const std::vector<int>& values) { return std::accumulate(values.begin(), values.end(), 0); }

// Narrows the columns by excess pixels in all, each in proportion to what it
// has above its floor and never below it.
void TakeBack(std::vector<int>& widths, const std::vector<int>& floors, int excess) {
    int slack = 0;
    for (std::size_t c = 0; c < widths.size(); ++c) slack += std::max(0, widths[c] - floors[c]);
    if (excess <= 0 || slack <= 0) return;
    for (std::size_t c = 0; c < widths.size(); ++c) {
        const int own = std::max(0, widths[c] - floors[c]);
        widths[c] -= excess >= slack ? own : (own * excess + slack - 1) / slack;
    }
}

}  // namespace

std::vector<int> Column_Widths(const std::vector<int>& twips, const std::vector<int>& needs, int room) {
    const std::size_t count = twips.size();
    if (count == 0) return {};
    const double scale = std::max(kNarrowest, room * static_cast<double>(kTwipsPerPixel) / Sum(twips));
    std::vector<int> widths(count), needed(count), narrowest(count);
    for (std::size_t c = 0; c < count; ++c) {
        const int need = c < needs.size() ? needs[c] : 0;
        narrowest[c] = static_cast<int>(twips[c] * kNarrowest / kTwipsPerPixel);
        needed[c] = std::max(narrowest[c], need);
        widths[c] = std::max(static_cast<int>(twips[c] * scale / kTwipsPerPixel), need);
    }
    // What the widened columns took comes back from the others, down to what
    // their texts need; and when that is not enough, from every column down
    // to the narrowest, so that the grid stays within its room.
    TakeBack(widths, needed, Sum(widths) - room);
    TakeBack(widths, narrowest, Sum(widths) - room);
    // The last column takes what is left.
    const int used = Sum(widths) - widths.back();
    widths.back() = std::max(widths.back(), room - used);
    return widths;
}

ColumnFit::ColumnFit(QTableWidget* grid, std::vector<int> twips) : QObject(grid), grid_(grid), twips_(std::move(twips)) {
    grid_->viewport()->installEventFilter(this);
    const QAbstractItemModel* model = grid_->model();
    connect(model, &QAbstractItemModel::dataChanged, this, &ColumnFit::FitLater);
    connect(model, &QAbstractItemModel::headerDataChanged, this, &ColumnFit::FitLater);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ColumnFit::FitLater);
    connect(model, &QAbstractItemModel::modelReset, this, &ColumnFit::FitLater);
    new ClippedTips(grid_);
    Fit();
}

bool ColumnFit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) Fit();
    return QObject::eventFilter(watched, event);
}

void ColumnFit::FitLater() {
    if (pending_) return;
    pending_ = true;
    QMetaObject::invokeMethod(this, &ColumnFit::Fit, Qt::QueuedConnection);
}

void ColumnFit::Fit() {
    pending_ = false;
    const std::vector<int> widths = Column_Widths(twips_, Column_Needs(grid_), grid_->viewport()->width());
    for (int c = 0; c < static_cast<int>(widths.size()); ++c) grid_->setColumnWidth(c, widths[c]);
}

std::vector<int> Column_Needs(const QTableWidget* grid) {
    const QHeaderView* header = grid->horizontalHeader();
    const QAbstractItemView* view = grid;  // the table view keeps its measure to itself
    std::vector<int> needs;
    for (int c = 0; c < grid->columnCount(); ++c)
        needs.push_back(std::max(view->sizeHintForColumn(c), header->isHidden() ? 0 : header->sectionSizeHint(c)));
    return needs;
}

int Columns_WholeWidth(const QTableWidget* grid, const std::vector<int>& twips) {
    return std::max(Sum(twips) / kTwipsPerPixel, Sum(Column_Needs(grid)));
}
