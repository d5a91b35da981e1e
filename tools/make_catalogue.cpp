// Builds the catalogue database from its SQL text at build time:
//   make_catalogue OUT.db FILE.sql...
// The files run in the order given, in one transaction, into a fresh file.
#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

bool Exec(sqlite3* db, const std::string& sql, const char* what) {
    char* error = nullptr;
    if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &error) == SQLITE_OK) return true;
    std::fprintf(stderr, "make_catalogue: %s: %s\n", what, error ? error : "error");
    sqlite3_free(error);
    return false;
}

bool Build(sqlite3* db, int count, char** files) {
    if (!Exec(db, "BEGIN;", "begin")) return false;
    for (int i = 0; i < count; ++i) {
        std::ifstream in(files[i], std::ios::binary);
        if (!in) {
            std::fprintf(stderr, "make_catalogue: cannot read %s\n", files[i]);
            return false;
        }
        std::ostringstream text;
        text << in.rdbuf();
        if (!Exec(db, text.str(), files[i])) return false;
    }
    return Exec(db, "COMMIT;", "commit");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: make_catalogue OUT.db FILE.sql...\n");
        return 2;
    }
    const std::string out = argv[1];
    const std::string temp = out + ".tmp";
    std::filesystem::remove(temp);
    sqlite3* db = nullptr;
    bool ok = sqlite3_open(temp.c_str(), &db) == SQLITE_OK && Build(db, argc - 2, argv + 2);
    ok = sqlite3_close(db) == SQLITE_OK && ok;
    if (ok) std::filesystem::rename(temp, out);
    else std::filesystem::remove(temp);
    return ok ? 0 : 1;
}
