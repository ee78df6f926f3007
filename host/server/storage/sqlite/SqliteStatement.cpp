// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteStatement.h"

#include <sqlite3.h>

namespace Tarvik::Server {

SqliteStatement::SqliteStatement(SqliteDatabase& database, std::string_view sql)
    : database_(database), sql_(sql), handle_(database.Borrow(sql)) {}

SqliteStatement::~SqliteStatement() {
    database_.Return(sql_, handle_);
}

void SqliteStatement::Reset() {
    sqlite3_reset(handle_);
    sqlite3_clear_bindings(handle_);
}

void SqliteStatement::BindOne(int place, std::string_view text) {
    const char* bytes = text.data() != nullptr ? text.data() : "";
    if (sqlite3_bind_text64(handle_, place, bytes, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8) != SQLITE_OK) {
        database_.Throw("the data base refused a text");
    }
}

void SqliteStatement::BindOne(int place, double number) {
    if (sqlite3_bind_double(handle_, place, number) != SQLITE_OK) {
        database_.Throw("the data base refused a number");
    }
}

void SqliteStatement::BindInteger(int place, std::int64_t number) {
    if (sqlite3_bind_int64(handle_, place, number) != SQLITE_OK) {
        database_.Throw("the data base refused a number");
    }
}

bool SqliteStatement::Step() {
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
    while (Step()) {
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
