#include "selection/Recordset.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "base/RuntimeError.h"

namespace {

bool SameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

FieldValue Column(sqlite3_stmt* statement, int column) {
    FieldValue value;
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
            value.kind = FieldValue::Kind::Number;
            value.number = sqlite3_column_double(statement, column);
            break;
        case SQLITE_NULL:
            break;
        default:
            value.kind = FieldValue::Kind::Text;
            value.text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    }
    return value;
}

}  // namespace

double FieldValue::Num() const {
    if (kind == Kind::Number) return number;
    return kind == Kind::Text ? Val(text) : 0;
}

std::string FieldValue::Text() const {
    if (kind == Kind::Number) return NumberText(number);
    return text;
}

void Recordset::MoveNext() {
    if (IsEOF()) throw RuntimeError("Either BOF or EOF is True, or the current record has been deleted.");
    ++position_;
}

void Recordset::Move(int rows) {
    if (position_ + rows < 0) throw RuntimeError("Either BOF or EOF is True, or the current record has been deleted.");
    position_ = std::min(position_ + rows, rows_);
}

const FieldValue& Recordset::Field(std::string_view name) const {
    if (IsEOF()) throw RuntimeError("Either BOF or EOF is True, or the current record has been deleted.");
    const auto columns = static_cast<int>(names_.size());
    for (int c = 0; c < columns; ++c)
        if (SameName(names_[c], name)) return values_[static_cast<std::size_t>(position_) * columns + c];
    throw RuntimeError("Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

void Recordset::Close() {
    names_.clear();
    values_.clear();
    rows_ = position_ = 0;
    open_ = false;
}

int Connection::Open(const std::string& path) {
    Close();
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) return kErrFileNotFound;
    const int opened = sqlite3_open_v2(path.c_str(), &db_, SQLITE_OPEN_READONLY, nullptr);
    // SQLite reads the file lazily: a first look at the schema tells a
    // database from any other file.
    const int checked = opened == SQLITE_OK
        ? sqlite3_exec(db_, "SELECT count(*) FROM sqlite_master;", nullptr, nullptr, nullptr)
        : opened;
    if (checked != SQLITE_OK) Close();
    return checked;
}

bool Connection::Execute(std::string_view query, Recordset& recordset) const {
    recordset.Close();
    if (db_ == nullptr) return false;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db_, query.data(), static_cast<int>(query.size()), &statement, nullptr) != SQLITE_OK) {
        sqlite3_finalize(statement);
        return false;
    }
    const int columns = sqlite3_column_count(statement);
    for (int c = 0; c < columns; ++c) recordset.names_.emplace_back(sqlite3_column_name(statement, c));
    int step = SQLITE_ROW;
    while ((step = sqlite3_step(statement)) == SQLITE_ROW) {
        for (int c = 0; c < columns; ++c) recordset.values_.push_back(Column(statement, c));
        ++recordset.rows_;
    }
    sqlite3_finalize(statement);
    if (step != SQLITE_DONE) {
        recordset.Close();
        return false;
    }
    recordset.open_ = true;
    return true;
}

void Connection::Close() {
    sqlite3_close(db_);
    db_ = nullptr;
}
