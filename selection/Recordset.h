// The connection and row set over the catalogue database: what the selection
// needs of a relational store and nothing more. Open by a path (read-only),
// execute a query into a row set, count, move, test the end, read a field by
// name, close.
#pragma once

#include <sqlite3.h>

#include <string>
#include <string_view>
#include <vector>

// The error number of an open that found no file.
inline constexpr int kErrFileNotFound = 3024;

// A field as read: blank (null), a number or a text.
struct FieldValue {
    enum class Kind { Null, Number, Text };
    Kind kind = Kind::Null;
    double number = 0;
    std::string text;  // UTF-8

    // Null, or a text that is empty: what the system tests against "".
    bool Blank() const { return kind == Kind::Null || (kind == Kind::Text && text.empty()); }
    // The number; a text is read through Val; blank gives 0.
    double Num() const;
    // The text; a number through NumberText; blank gives "".
    std::string Text() const;
};

// A static row set: every row is read at the query, so the order and the
// row count stay as they were while the set is open.
class Recordset {
public:
    bool IsOpen() const { return open_; }
    int RecordCount() const { return rows_; }
    bool IsEOF() const { return position_ >= rows_; }
    void MoveFirst() { position_ = 0; }
    void MoveNext();
    // Moves by a signed number of rows from the current one; moving before
    // the first row is a run-time failure, beyond the last gives the end.
    void Move(int rows);
    // The field of the current row, its name matched without regard to
    // case. No current row or no such field is a run-time failure.
    const FieldValue& Field(std::string_view name) const;
    void Close();

private:
    friend class Connection;
    std::vector<std::string> names_;
    std::vector<FieldValue> values_;  // row after row
    int rows_ = 0;
    int position_ = 0;
    bool open_ = false;
};

class Connection {
public:
    Connection() = default;
    ~Connection() { Close(); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Opens the database file read-only: 0, kErrFileNotFound, or another
    // nonzero error number when the file is no readable database.
    int Open(const std::string& path);
    bool IsOpen() const { return db_ != nullptr; }
    // Runs the query into the row set; false, with the set closed, when the
    // connection is not open or the query fails.
    bool Execute(std::string_view query, Recordset& recordset) const;
    // Silent when nothing is open.
    void Close();

private:
    sqlite3* db_ = nullptr;
};
