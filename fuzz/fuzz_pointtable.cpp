// A point table as the user's disk may hold it: any bytes at all. Importing
// it either refuses and leaves the pattern as it was, or replaces the pattern
// with complete rows, at most 20, that the sizing has run over and that
// write out as a point table the reader reads again; nothing else may happen.
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "commands/PatternCommands.h"
#include "commands/PatternFile.h"
#include "core/Document.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "core/Templates.h"
#include "fuzz/FuzzFolder.h"
#include "pattern/PointTable.h"
#include "pattern/PointTableText.h"

namespace {

// The horizontal ballscrew with a pattern of two rows, as every input finds it.
void Document_Start() {
    Template_Fill(1, false);
    ElementCount = MecaTemplateCount[1];
    Patarn = {};
    Patarn_SetField(Patarn, 1, 0, 1, 0.1, FieldDeltaTime);
    Patarn_SetField(Patarn, 1, 5, 0, 3000, FieldSpeed);
    Patarn_SetField(Patarn, 2, 0, 1, 0.1, FieldDeltaTime);
    Patarn_SetField(Patarn, 2, 5, 0, 0, FieldSpeed);
    Patarn_Recalculate();
    DirtyFlag = 0;
}

bool Same(double a, double b) { return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b); }

bool Same(const PatarnTable& a, const PatarnTable& b) {
    for (int r = 0; r < kPatarnRecords; ++r) {
        const PatarnRow &x = a[r], &y = b[r];
        if (!Same(x.Time, y.Time) || !Same(x.DeltaTime, y.DeltaTime) || !Same(x.Speed, y.Speed) ||
            !Same(x.LoadSpeed, y.LoadSpeed) || !Same(x.Position, y.Position) || !Same(x.Torque, y.Torque) ||
            !Same(x.Regeneration, y.Regeneration) || x.RowState != y.RowState)
            return false;
    }
    return true;
}

void Check_Accepted() {
    bool ok = DirtyFlag == 1 && PatternRowCount >= 1 && PatternRowCount <= kPatarnRows &&
              PatternRowCount == Patarn_CountRows(Patarn);
    PointTable again;
    ok = ok && PointTable_Parse(PointTable_Text(Patarn, PointColumns::Time), again).empty() &&
         static_cast<int>(again.lines.size()) == PatternRowCount + 1;
    if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string path = Fuzz_Folder() + "/fuzz.csv";
    Document_Start();
    const PatarnTable before = Patarn;
    const int16_t count = PatternRowCount;
    Fuzz_Write(path, data, size);
    if (Pattern_Import(path)) {
        Check_Accepted();
    } else if (!Same(before, Patarn) || PatternRowCount != count || DirtyFlag != 0) {
        std::abort();
    }
    return 0;
}
