#include "selection/CatalogueBuild.h"

#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace {

bool Exec(sqlite3* db, const std::string& sql, const std::string& what, std::string& error) {
    char* message = nullptr;
    if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &message) == SQLITE_OK) return true;
    error = what + ": " + (message != nullptr ? message : "error");
    sqlite3_free(message);
    return false;
}

bool Run(sqlite3* db, const std::vector<std::string>& files, std::string& error) {
    if (!Exec(db, "BEGIN;", "begin", error)) return false;
    for (const std::string& file : files) {
        std::ifstream in(file, std::ios::binary);
        std::ostringstream text;
        if (in) text << in.rdbuf();
        if (!in || in.bad()) {
            error = "cannot read " + file;
            return false;
        }
        if (!Exec(db, text.str(), file, error)) return false;
    }
    return Exec(db, "COMMIT;", "commit", error);
}

}  // namespace

bool Catalogue_Build(const std::string& target, const std::vector<std::string>& sqlFiles, std::string& error) {
    const std::string temp = target + ".tmp";
    std::error_code ec;
    std::filesystem::remove(temp, ec);
    sqlite3* db = nullptr;
    bool ok = sqlite3_open(temp.c_str(), &db) == SQLITE_OK;
    if (!ok) error = "cannot create " + temp;
    ok = ok && Run(db, sqlFiles, error);
    ok = sqlite3_close(db) == SQLITE_OK && ok;
    if (ok) {
        std::filesystem::rename(temp, target, ec);
        if (ec) error = "cannot write " + target + ": " + ec.message();
        ok = !ec;
    }
    if (!ok) std::filesystem::remove(temp, ec);
    return ok;
}
