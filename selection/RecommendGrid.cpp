#include "selection/RecommendGrid.h"

#include "base/NumberFormat.h"
#include "selection/DriverJudge.h"
#include "selection/MotorJudge.h"

const std::array<GridColumn, kRecommendCols> kRecommendColumns = {{
    {"", 600, CellAlign::Right},
    {"Series", 2200, CellAlign::Left},
    {"Model", 2400, CellAlign::Left},
    {"Motor", 1500, CellAlign::Left},
    {"Driver", 1500, CellAlign::Left},
    {"Capacity", 900, CellAlign::Right},
    {"Tightest limit", 1700, CellAlign::Left},
    {"Ratio", 700, CellAlign::Right},
}};

Grid Recommend_Grid(const std::vector<Recommendation>& pairs) {
    Grid grid(kRecommendCols);
    constexpr std::array<std::string_view, kRecommendCols> units = {"", "", "", "", "", "W", "", ""};
    for (int col = 0; col < kRecommendCols; ++col) {
        grid.Cell(0, col).text = kRecommendColumns[col].caption;
        grid.Cell(1, col).text = units[col];
    }
    for (const Recommendation& pair : pairs) {
        const int row = grid.AddRow();
        GridCell& verdict = grid.Cell(row, 0);
        verdict.text = pair.verdict;
        verdict.bold = true;
        verdict.color = JudgeColor(pair.verdict);
        grid.Cell(row, 1).text = pair.series;
        grid.Cell(row, 2).text = pair.model;
        grid.Cell(row, 3).text = pair.motor;
        grid.Cell(row, 4).text = pair.driver;
        if (pair.capacity) grid.Cell(row, 5).text = Format_Mask(*pair.capacity, kMaskWhole);
        if (pair.tightest >= 0) {
            grid.Cell(row, 6).text = kLimitNames[pair.tightest].caption;
            grid.Cell(row, 7).text = Format_Mask(pair.Ratio(), kMask2);
        }
    }
    return grid;
}
