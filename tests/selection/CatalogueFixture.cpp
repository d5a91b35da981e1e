#include "tests/selection/CatalogueFixture.h"

#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "selection/mdlDataBase.h"

void Catalogue_Build(const std::string& folder, const std::string& rows) {
    const std::string sql = ReadFile(std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/10_schema.sql") + rows;
    sqlite3* db = nullptr;
    char* error = nullptr;
    const bool ok = sqlite3_open((folder + "/Series.db").c_str(), &db) == SQLITE_OK &&
                    sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &error) == SQLITE_OK;
    const std::string what = error ? error : "cannot build the catalogue";
    sqlite3_free(error);
    sqlite3_close(db);
    if (!ok) throw std::runtime_error(what);
}

std::string Catalogue_CurveTable() {
    return ReadFile(std::string(TORVANE_SOURCE_DIR) + "/data/catalogue/50_curve_table.sql");
}

std::string Catalogue_Bundled() {
    return (std::filesystem::path(TORVANE_CLI).parent_path() / "Series.db").string();
}

std::string Sql(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", x);
    return text;
}

void SeriesDbTest::TearDown() {
    MotorRecordset.Close();
    DriverRecordset.Close();
    SeriesConnection.Close();
    StateTest::TearDown();
}
