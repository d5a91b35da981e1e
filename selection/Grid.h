// The content of a wizard grid without the window: two fixed header rows,
// then one row per catalogue row, each cell with its text, weight and
// colour. The windows and the command line show the same cells.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Colours as the system's red-green-blue integers in text form.
inline constexpr std::string_view kColorWindowText = "-2147483640";
inline constexpr std::string_view kColorRed = "255";
inline constexpr std::string_view kColorOrange = "33023";

enum class CellAlign { Left, Center, Right };

// Caption of row 0, width in twips and alignment of the data cells.
struct GridColumn {
    std::string_view caption;
    int width;
    CellAlign align;
};

struct GridCell {
    std::string text;  // UTF-8
    bool bold = false;
    std::string_view color = kColorWindowText;
};

inline constexpr int kFixedRows = 2;

class Grid {
public:
    explicit Grid(int cols) : cols_(cols) { Clear(); }
    int Rows() const { return static_cast<int>(cells_.size()) / cols_; }
    int Cols() const { return cols_; }
    GridCell& Cell(int row, int col) { return cells_[static_cast<std::size_t>(row) * cols_ + col]; }
    const GridCell& Cell(int row, int col) const { return cells_[static_cast<std::size_t>(row) * cols_ + col]; }
    // Only the two fixed rows remain, and they are empty.
    void Clear() { cells_.assign(static_cast<std::size_t>(kFixedRows) * cols_, GridCell{}); }
    // Appends an empty row and gives its number.
    int AddRow() {
        cells_.resize(cells_.size() + cols_);
        return Rows() - 1;
    }

private:
    int cols_;
    std::vector<GridCell> cells_;
};
