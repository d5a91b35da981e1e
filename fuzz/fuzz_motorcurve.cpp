// A speed-torque curve and a driver as a maker's data may hold them: the
// points of the chosen motor's curve (model, speed and both torques, each a
// number, a text or blank) and the driver's two regeneration limits come from
// the input. The checks are read, computed, tabled and charted over a sized
// document and may end only with a message or a RuntimeError.
#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <vector>

#include "base/MsgBox.h"
#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "fuzz/FuzzFolder.h"
#include "fuzz/FuzzRows.h"
#include "selection/ChecksChart.h"
#include "selection/ChecksGrid.h"

namespace {

constexpr const char* kRows[] = {
    "INSERT INTO MotorCurve VALUES (?, ?, ?, ?)", "INSERT INTO MotorCurve VALUES (?, ?, ?, ?)",
    "INSERT INTO MotorCurve VALUES (?, ?, ?, ?)", "INSERT INTO MotorCurve VALUES ('M1', ?, ?, ?)",
    "INSERT INTO MotorCurve VALUES ('M1', ?, ?, ?)", "INSERT INTO DriverTable VALUES ('D1', ?, ?, 1, '', '', '')",
};

bool Build(const std::string& path, const std::vector<std::string>& fields) {
    sqlite3* db = Catalogue_Writer(path, {"10_schema.sql", "50_curve_table.sql"});
    bool ok = sqlite3_exec(db, "BEGIN; DELETE FROM MotorCurve; DELETE FROM DriverTable;", nullptr, nullptr, nullptr) ==
              SQLITE_OK;
    ok = ok && Rows_Insert(db, kRows, fields);
    return sqlite3_exec(db, ok ? "COMMIT;" : "ROLLBACK;", nullptr, nullptr, nullptr) == SQLITE_OK && ok;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    MsgBox_SetHandler([](const MsgRequest&) { return MsgAnswer::OK; });
    const std::string& dir = Fuzz_Folder();
    if (!Build(dir + "/Series.db", Fields(data, size))) return 0;
    Fuzz_Ballscrew(-4000);
    MotorSelected = kMotorChosen;
    SelectedJm = 1e-4;
    MotorModelText = "M1-X";
    DriverModelText = "D1";
    Culcurate_All();
    try {
        const ChosenParts parts = Parts_OfDocument();
        EngineeringChecks checks;
        Checks_OfDocument(parts, checks);
        Checks_Grid(checks);
        Chart_Build(checks, parts.curve, 640, 480);
    } catch (const RuntimeError&) {
    }
    return 0;
}
