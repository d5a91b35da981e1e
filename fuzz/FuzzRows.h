// Catalogue rows out of a fuzz input (the input's lines are the fields, and
// each goes into its row blank, as a number or as a text), and the document
// that the catalogue is judged against.
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "base/Numeric.h"
#include "core/Document.h"
#include "core/Tables.h"

// The fields of the input, one per line.
inline std::vector<std::string> Fields(const uint8_t* data, size_t size) {
    std::vector<std::string> fields(1);
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == '\n') fields.emplace_back();
        else fields.back() += static_cast<char>(data[i]);
    }
    return fields;
}

// A field goes in blank when empty, as a number when it reads as one, else as a text.
inline void Bind(sqlite3_stmt* statement, int column, const std::string& field) {
    if (field.empty()) sqlite3_bind_null(statement, column);
    else if (IsNumeric(field)) sqlite3_bind_double(statement, column, Val(field));
    else sqlite3_bind_text(statement, column, field.c_str(), static_cast<int>(field.size()), SQLITE_TRANSIENT);
}


// Runs each INSERT of rows, its parameters bound to the next fields in turn
// (blank once the fields run out): false at the first that fails.
inline bool Rows_Insert(sqlite3* db, std::span<const char* const> rows, const std::vector<std::string>& fields) {
    size_t next = 0;
    bool ok = true;
    for (const char* row : rows) {
        sqlite3_stmt* statement = nullptr;
        ok = ok && sqlite3_prepare_v2(db, row, -1, &statement, nullptr) == SQLITE_OK;
        for (int c = 1; ok && c <= sqlite3_bind_parameter_count(statement); ++c)
            Bind(statement, c, next < fields.size() ? fields[next++] : std::string());
        ok = ok && sqlite3_step(statement) == SQLITE_DONE;
        sqlite3_finalize(statement);
    }
    return ok;
}

// The catalogue file stays open for writing across inputs, its tables made
// once from the schema files of data/catalogue/; each input empties and
// fills them anew, without a journal and without waiting for the disk.
inline sqlite3* Catalogue_Writer(const std::string& path, std::initializer_list<const char*> schemaFiles) {
    static sqlite3* db = [&path, schemaFiles] {
        std::string sql = "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; ";
        for (const char* file : schemaFiles) {
            std::ifstream schema(std::string(TORVANE_SOURCE_DIR "/data/catalogue/") + file);
            sql.append(std::istreambuf_iterator<char>(schema), std::istreambuf_iterator<char>());
        }
        sqlite3* opened = nullptr;
        if (sqlite3_open(path.c_str(), &opened) != SQLITE_OK ||
            sqlite3_exec(opened, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            std::abort();
        return opened;
    }();
    return db;
}

// The horizontal ballscrew with a pattern of three rows: up to 3000 r/min,
// on at the cruise speed, down to rest; no motor chosen, not yet calculated.
inline void Fuzz_Ballscrew(double cruise) {
    Template_Fill(1, true);
    ElementCount = MecaTemplateCount[1];
    MotorSelected = 0;
    Patarn = {};
    Patarn[1] = {0.1, 0.1, 3000, 0, 0, 0, 0, 3};
    Patarn[2] = {0.6, 0.5, cruise, 0, 0, 0, 0, 3};
    Patarn[3] = {0.7, 0.1, 0, 0, 0, 0, 0, 3};
    PatternRowCount = 3;
}
