#include "bench/BenchCatalogue.h"

#include <sqlite3.h>
#include <stdlib.h>

#include <fstream>
#include <iterator>

#include "core/Startup.h"
#include "tests/selection/SizedDocument.h"

namespace {

constexpr int kDrivers = 20;

std::string Schema() {
    std::ifstream in(TORVANE_SOURCE_DIR "/data/catalogue/10_schema.sql");
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::filesystem::path Folder(const std::string& name) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / ("torvane-bench-" + name);
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    return folder;
}

}  // namespace

std::string Catalogue_Generated(int series, int groups, int motors) {
    std::string sql = "INSERT INTO DriverTypeMaster VALUES (1, 'ok', 'ng', 0, 2);";
    for (int d = 0; d < kDrivers; ++d)
        sql += "INSERT INTO DriverTable VALUES ('DRV-" + std::to_string(d) + "', " +
               (d == 0 ? "NULL, NULL" : std::to_string(10 * d) + ", " + std::to_string(d)) +
               ", 1, 'Pulse', '200', 'Three-phase');";
    for (int s = 1; s <= series; ++s) {
        sql += "INSERT INTO MotorSeriesMaster VALUES ('Series " + std::to_string(s) + "', " + std::to_string(s) + ", " +
               std::to_string(s) + ");";
        for (int g = 1; g <= groups; ++g) {
            sql += "INSERT INTO ModelMaster VALUES (" + std::to_string(s) + ", 'Group " + std::to_string(g) + "', " +
                   std::to_string(g) + ");";
            for (int i = 0; i < motors; ++i) {
                const std::string model = "GEN-" + std::to_string(s) + "-" + std::to_string(g) + "-" + std::to_string(i);
                const double capacity = 50 + 7.45 * i;
                const double rated = capacity / (6.283185307 * 3000 / 60);
                sql += "INSERT INTO MotorTable VALUES (" + std::to_string(s) + ", " + std::to_string(g) + ", '" + model +
                       "', " + std::to_string(capacity) + ", 3000, " + std::to_string(3e-5 * rated) + ", " +
                       std::to_string(rated) + ", " + std::to_string(3 * rated) + ", 15, " +
                       std::to_string(0.5 + rated) + ", " + (i % 2 ? "NULL" : std::to_string(5e-6 * rated)) +
                       ", 'generated');";
                sql += "INSERT INTO MotorDriverTable VALUES ('" + model + "', 'DRV-0'), ('" + model + "', 'DRV-" +
                       std::to_string(1 + i % (kDrivers - 1)) + "');";
            }
        }
    }
    return sql;
}

BenchCatalogue::BenchCatalogue(const std::string& name, const std::string& rows) : folder_(Folder(name)) {
    sqlite3* db = nullptr;
    sqlite3_open((folder_ / "Series.db").c_str(), &db);
    sqlite3_exec(db, ("BEGIN;" + Schema() + rows + "COMMIT;").c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(db);
    Prepare();
}

BenchCatalogue::BenchCatalogue(const std::string& name, const std::filesystem::path& file) : folder_(Folder(name)) {
    std::filesystem::copy_file(file, folder_ / "Series.db");
    Prepare();
}

BenchCatalogue::~BenchCatalogue() { std::filesystem::remove_all(folder_); }

void BenchCatalogue::Prepare() {
    setenv("TORVANE_APP_PATH", folder_.c_str(), 1);
    Main_Prepare("");
    Document_Sized();
}
