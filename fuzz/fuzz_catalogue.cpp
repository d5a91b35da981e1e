// A catalogue row as a maker's data may hold it: every field of a series, a
// model group, a motor, a driver and a driver type comes from the input, as
// a number, a text or blank. The recommendation over the whole catalogue
// and the whole wizard run over it (lists, motor grid, judgement, "Next >",
// the drivers, "Finish") and may end only with a message or a RuntimeError.
#include <sqlite3.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "fuzz/FuzzFolder.h"
#include "fuzz/FuzzRows.h"
#include "selection/DriverPage.h"
#include "selection/MotorPage.h"
#include "selection/Recommend.h"
#include "selection/mdlDataBase.h"

namespace {

constexpr const char* kRows[] = {
    "INSERT INTO MotorSeriesMaster VALUES (?, 1, 1)",
    "INSERT INTO ModelMaster VALUES (1, ?, 1)",
    "INSERT INTO MotorTable VALUES (1, 1, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
    "INSERT INTO MotorTable VALUES (1, 1, 'SECOND', 400, 3000, 2.6e-5, 1.27, 3.8, ?, 1.5, 0, ?)",
    "INSERT INTO DriverTable VALUES (?, ?, ?, ?, ?, ?, ?)",
    "INSERT INTO MotorDriverTable VALUES (?, ?)",
    "INSERT INTO MotorDriverTable VALUES ('SECOND', ?)",
    "INSERT INTO DriverTypeMaster VALUES (?, ?, ?, ?, ?)",
};

bool Build(const std::string& path, const std::vector<std::string>& fields) {
    sqlite3* db = Catalogue_Writer(path, {"10_schema.sql"});
    bool ok = sqlite3_exec(db,
                           "BEGIN; DELETE FROM MotorSeriesMaster; DELETE FROM ModelMaster; DELETE FROM MotorTable;"
                           " DELETE FROM DriverTable; DELETE FROM MotorDriverTable; DELETE FROM DriverTypeMaster;",
                           nullptr, nullptr, nullptr) == SQLITE_OK;
    ok = ok && Rows_Insert(db, kRows, fields);
    return sqlite3_exec(db, ok ? "COMMIT;" : "ROLLBACK;", nullptr, nullptr, nullptr) == SQLITE_OK && ok;
}

void Run_Wizard() {
    MotorPage motors;
    MotorPage_Load(motors);
    if (motors.lstS.empty()) return;
    MotorPage_PickSeries(motors, 0);
    if (motors.lstM.empty()) return;
    MotorPage_PickModel(motors, 0);
    MotorPage_Judge(motors);
    for (int row = 2; row < 2 + MotorRowCount; ++row) {
        MotorPage_MoveToRow(motors, row);
        DriverPage drivers;
        if (!MotorPage_TakeMotor(motors, drivers)) continue;
        DriverPage_Fill(drivers);
        drivers.Row = 1;
        DriverPage_Finish(motors, drivers);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    MsgBox_SetHandler([](const MsgRequest&) { return MsgAnswer::OK; });
    const std::string& dir = Fuzz_Folder();
    if (!Build(dir + "/Series.db", Fields(data, size))) return 0;
    Fuzz_Ballscrew(3000);
    Culcurate_All();
    try {
        Series_Connect();
        Recommend({true, 10});
    } catch (const RuntimeError&) {
    }
    try {
        Run_Wizard();
    } catch (const RuntimeError&) {
    }
    MotorPage_Unload();
    return 0;
}
