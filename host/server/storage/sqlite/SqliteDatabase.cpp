// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteDatabase.h"

#include <utility>

#include <sqlite3.h>

#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

constexpr int kBusyMilliseconds = 10000;

/// The library counts every byte that it takes under one lock, for which the threads that read would wait.
/// Without effect, and harmless, where somebody has used the library before.
void StopCounting() {
    static const int done = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(done);
}

}  // namespace

SqliteDatabase::SqliteDatabase(const std::string& path) {
    StopCounting();
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr) == SQLITE_OK) {
        sqlite3_extended_result_codes(handle_, 1);
        sqlite3_busy_timeout(handle_, kBusyMilliseconds);
        return;
    }
    const std::string text = handle_ != nullptr ? sqlite3_errmsg(handle_) : "out of memory";
    sqlite3_close_v2(handle_);
    throw SqliteError("cannot open the data base: " + text);
}

SqliteDatabase::~SqliteDatabase() {
    for (const auto& [sql, statement] : statements_) {
        sqlite3_finalize(statement);
    }
    sqlite3_close_v2(handle_);
}

void SqliteDatabase::Execute(std::string_view sql) {
    if (sqlite3_exec(handle_, std::string(sql).c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        Throw("the data base refused a change");
    }
}

std::int64_t SqliteDatabase::QueryInteger(std::string_view sql) {
    SqliteStatement statement(*this, sql);
    if (!statement.Step()) {
        throw SqliteError("the data base gave no row where one was expected");
    }
    return statement.Integer(0);
}

sqlite3_stmt* SqliteDatabase::Borrow(std::string_view sql) {
    const auto kept = statements_.find(sql);
    if (kept != statements_.end() && kept->second != nullptr) {
        return std::exchange(kept->second, nullptr);
    }
    if (kept == statements_.end()) {
        statements_.emplace(sql, nullptr);
    }
    sqlite3_stmt* statement = nullptr;
    const int size = static_cast<int>(sql.size());
    if (sqlite3_prepare_v3(handle_, sql.data(), size, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK) {
        Throw("the data base refused a statement");
    }
    return statement;
}

void SqliteDatabase::Return(std::string_view sql, sqlite3_stmt* statement) noexcept {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    const auto place = statements_.find(sql);
    if (place != statements_.end() && place->second == nullptr) {
        place->second = statement;
    } else {
        sqlite3_finalize(statement);
    }
}

int SqliteDatabase::Changes() const {
    return sqlite3_changes(handle_);
}

bool SqliteDatabase::InTransaction() const {
    return sqlite3_get_autocommit(handle_) == 0;
}

bool SqliteDatabase::ReadOnly() const {
    return sqlite3_db_readonly(handle_, "main") == 1;
}

void SqliteDatabase::Throw(std::string_view doing) const {
    throw SqliteError(std::string(doing) + ": " + sqlite3_errmsg(handle_));
}

}  // namespace Tarvik::Server
