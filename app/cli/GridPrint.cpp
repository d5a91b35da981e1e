#include "app/cli/GridPrint.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/cli/Json.h"

namespace {

std::string Shown(const Grid& grid, int row, int col) {
    const GridCell& cell = grid.Cell(row, col);
    if (row < kFixedRows || col == 0 || !cell.bold) return cell.text;
    return cell.text + (cell.color == kColorRed ? "!" : cell.color == kColorOrange ? "~" : "");
}

// Characters, not bytes, of a UTF-8 text.
std::size_t Width(const std::string& text) {
    return std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
}

void JsonTexts(const Grid& grid, int row, std::ostream& out) {
    out << '[';
    for (int col = 0; col < grid.Cols(); ++col) out << (col ? "," : "") << Json_String(grid.Cell(row, col).text);
    out << ']';
}

}  // namespace

void Grid_PrintText(const Grid& grid, std::ostream& out) {
    std::vector<std::size_t> widths(grid.Cols(), 0);
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col) widths[col] = std::max(widths[col], Width(Shown(grid, row, col)));
    for (int row = 0; row < grid.Rows(); ++row) {
        std::string line;
        for (int col = 0; col < grid.Cols(); ++col) {
            const std::string text = Shown(grid, row, col);
            line += text + std::string(widths[col] - Width(text) + 2, ' ');
        }
        out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
}

void Grid_PrintJson(const Grid& grid, std::ostream& out) {
    out << "{\"captions\":";
    JsonTexts(grid, 0, out);
    out << ",\"units\":";
    JsonTexts(grid, 1, out);
    out << ",\"rows\":[";
    for (int row = kFixedRows; row < grid.Rows(); ++row) {
        out << (row > kFixedRows ? "," : "") << '[';
        for (int col = 0; col < grid.Cols(); ++col) {
            const GridCell& cell = grid.Cell(row, col);
            out << (col ? "," : "") << "{\"text\":" << Json_String(cell.text)
                << ",\"bold\":" << (cell.bold ? "true" : "false") << ",\"color\":" << Json_String(cell.color) << '}';
        }
        out << ']';
    }
    out << "]}";
}
