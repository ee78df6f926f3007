// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteStatement.h"

#include <sqlite3.h>

namespace Tarvik::Server {

SqliteStatement::SqliteStatement(SqliteDatabase& database, std::string_view sql)
    : database_(database), sql_(sql), handle_(database.Borrow(sql)) {}

SqliteStatement::~SqliteStatement() {
    database_.Return(sql_, handle_);
}

void SqliteStatement::Bind(std::span<const SqlValue> values) {
    if (used_) {
        sqlite3_reset(handle_);
        sqlite3_clear_bindings(handle_);
    }
    used_ = true;
    int place = 0;
    for (const SqlValue& value : values) {
        if (BindOne(++place, value) != SQLITE_OK) {
            database_.Throw("the data base refused a value");
        }
    }
}

int SqliteStatement::BindOne(int place, const SqlValue& value) {
    if (const auto* text = std::get_if<std::string_view>(&value.Get())) {
        const char* bytes = text->data() != nullptr ? text->data() : "";
        return sqlite3_bind_text64(handle_, place, bytes, text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    if (const auto* number = std::get_if<std::int64_t>(&value.Get())) {
        return sqlite3_bind_int64(handle_, place, *number);
    }
    if (const auto* number = std::get_if<double>(&value.Get())) {
        return sqlite3_bind_double(handle_, place, *number);
    }
    return sqlite3_bind_int64(handle_, place, std::get<bool>(value.Get()) ? 1 : 0);
}

bool SqliteStatement::Next() {
    used_ = true;
    const int result = sqlite3_step(handle_);
    if (result == SQLITE_ROW) {
        return true;
    }
    if (result != SQLITE_DONE) {
        database_.Throw("the data base failed");
    }
    return false;
}

int SqliteStatement::Run() {
    while (Next()) {
    }
    return database_.Changes();
}

std::int64_t SqliteStatement::Integer(int column) const {
    return sqlite3_column_int64(handle_, column);
}

double SqliteStatement::Real(int column) const {
    return sqlite3_column_double(handle_, column);
}

std::string SqliteStatement::Text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
    if (bytes == nullptr) {
        return {};
    }
    return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column))};
}

}  // namespace Tarvik::Server
