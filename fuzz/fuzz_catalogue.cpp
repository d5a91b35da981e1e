// A catalogue row as a maker's data may hold it: every field of a series, a
// model group, a motor, a driver and a driver type comes from the input, as
// a number, a text or blank. The recommendation over the whole catalogue
// and the whole wizard run over it (lists, motor grid, judgement, "Next >",
// the drivers, "Finish") and may end only with a message or a RuntimeError.
#include <sqlite3.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "core/Document.h"
#include "core/Tables.h"
#include "fuzz/FuzzFolder.h"
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

// The fields of the input, one per line.
std::vector<std::string> Fields(const uint8_t* data, size_t size) {
    std::vector<std::string> fields(1);
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == '\n') fields.emplace_back();
        else fields.back() += static_cast<char>(data[i]);
    }
    return fields;
}

// A field goes in blank when empty, as a number when it reads as one, else as a text.
void Bind(sqlite3_stmt* statement, int column, const std::string& field) {
    if (field.empty()) sqlite3_bind_null(statement, column);
    else if (IsNumeric(field)) sqlite3_bind_double(statement, column, Val(field));
    else sqlite3_bind_text(statement, column, field.c_str(), static_cast<int>(field.size()), SQLITE_TRANSIENT);
}

// The catalogue file stays open for writing across inputs: each input
// empties its six tables and fills them anew, without a journal and without
// waiting for the disk, as one transaction.
sqlite3* Catalogue_Writer(const std::string& path) {
    static sqlite3* db = [&path] {
        std::ifstream schema(TORVANE_SOURCE_DIR "/data/catalogue/10_schema.sql");
        const std::string sql = "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; " +
                                std::string(std::istreambuf_iterator<char>(schema), std::istreambuf_iterator<char>());
        sqlite3* opened = nullptr;
        if (sqlite3_open(path.c_str(), &opened) != SQLITE_OK ||
            sqlite3_exec(opened, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            std::abort();
        return opened;
    }();
    return db;
}

bool Build(const std::string& path, const std::vector<std::string>& fields) {
    sqlite3* db = Catalogue_Writer(path);
    bool ok = sqlite3_exec(db,
                           "BEGIN; DELETE FROM MotorSeriesMaster; DELETE FROM ModelMaster; DELETE FROM MotorTable;"
                           " DELETE FROM DriverTable; DELETE FROM MotorDriverTable; DELETE FROM DriverTypeMaster;",
                           nullptr, nullptr, nullptr) == SQLITE_OK;
    size_t next = 0;
    for (const char* row : kRows) {
        sqlite3_stmt* statement = nullptr;
        ok = ok && sqlite3_prepare_v2(db, row, -1, &statement, nullptr) == SQLITE_OK;
        for (int c = 1; ok && c <= sqlite3_bind_parameter_count(statement); ++c)
            Bind(statement, c, next < fields.size() ? fields[next++] : std::string());
        ok = ok && sqlite3_step(statement) == SQLITE_DONE;
        sqlite3_finalize(statement);
    }
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
    Template_Fill(1, true);
    ElementCount = MecaTemplateCount[1];
    MotorSelected = 0;
    Patarn = {};
    Patarn[1] = {0.1, 0.1, 3000, 0, 0, 0, 0, 3};
    Patarn[2] = {0.6, 0.5, 3000, 0, 0, 0, 0, 3};
    Patarn[3] = {0.7, 0.1, 0, 0, 0, 0, 0, 3};
    PatternRowCount = 3;
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
