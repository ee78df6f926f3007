// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteDatabase.h"

#include <algorithm>
#include <array>
#include <thread>
#include <utility>

#include <sqlite3.h>

#include "host/server/storage/sql/SqlDialect.h"
#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

/// A file has one writer, so nobody can take away what a writing transaction has found.
constexpr std::array<SqlPoint, 6> kPoints = {{
    {"next id", "UPDATE next_id SET value = value + 1 RETURNING value - 1"},
    {"touch", "UPDATE next_id SET value = value"},
    {"hold", ""},
    {"share", ""},
    {"free", ""},
    {"object", "objectid = %"},
}};

/// The library counts every byte that it takes under one lock, for which the threads that read would wait.
/// Without effect, and harmless, where somebody has used the library before.
void StopCounting() {
    static const int done = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(done);
}

/// The statement in the words of this data base, in which $1 is a name and ?1 the first place.
std::string Translate(std::string_view sql) {
    std::string text = WithPoints(sql, kPoints);
    for (char& sign : text) {
        if (sign == '$') {
            sign = '?';
        }
    }
    return text;
}

std::string InsertText(const SqlBatch& batch) {
    std::string names = "owner, " + std::string(batch.parentColumn);
    std::string places = "$1, $2";
    for (std::size_t i = 0; i < batch.columns.size(); ++i) {
        names.append(", ").append(batch.columns[i].name);
        places += ", $" + std::to_string(i + 3);
    }
    return "INSERT INTO " + std::string(batch.table) + " (" + names + ") VALUES (" + places +
           ") ON CONFLICT DO NOTHING";
}

}  // namespace

SqliteDatabase::SqliteDatabase(const std::string& path) {
    StopCounting();
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr) == SQLITE_OK) {
        sqlite3_extended_result_codes(handle_, 1);
        sqlite3_busy_handler(handle_, &SqliteDatabase::MayWait, this);
        return;
    }
    const std::string text = handle_ != nullptr ? sqlite3_errmsg(handle_) : "out of memory";
    sqlite3_close_v2(handle_);
    throw SqlError("cannot open the data base: " + text);
}

int SqliteDatabase::MayWait(void* self, int times) {
    constexpr int kMostPause = 10;
    auto& database = *static_cast<SqliteDatabase*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (times == 0) {
        database.waiting_ = now;
    }
    if (database.givenUp_ || now - database.waiting_ >= database.patience_) {
        return 0;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(times + 1, kMostPause)));
    return 1;
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
    const auto row = Query(sql);
    if (!row->Next()) {
        throw SqlError("the data base gave no row where one was expected");
    }
    return row->Integer(0);
}

std::unique_ptr<SqlRows> SqliteDatabase::QueryWith(std::string_view sql, std::span<const SqlValue> values) {
    auto statement = std::make_unique<SqliteStatement>(*this, sql);
    statement->Bind(values);
    return statement;
}

int SqliteDatabase::RunWith(std::string_view sql, std::span<const SqlValue> values) {
    SqliteStatement statement(*this, sql);
    statement.Bind(values);
    return statement.Run();
}

std::optional<std::int32_t> SqliteDatabase::Insert(const SqlBatch& batch) {
    const std::string text = InsertText(batch);
    SqliteStatement insert(*this, text);
    const std::size_t width = batch.columns.size();
    std::vector<SqlValue> values = {batch.owner, batch.parent};
    for (std::size_t row = 0; row + width <= batch.values.size(); row += width) {
        values.erase(values.begin() + 2, values.end());
        const auto first = batch.values.begin() + static_cast<std::ptrdiff_t>(row);
        values.insert(values.end(), first, first + static_cast<std::ptrdiff_t>(width));
        insert.Bind(values);
        if (insert.Run() == 0) {
            return static_cast<std::int32_t>(std::get<std::int64_t>(first->Get()));
        }
    }
    return std::nullopt;
}

bool SqliteDatabase::SkipIds(std::int64_t lowest, std::int64_t highest) {
    return Run("UPDATE next_id SET value = $1 WHERE value <= $2", highest + 1, lowest) == 1;
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
    const std::string text = Translate(sql);
    if (sqlite3_prepare_v3(handle_, text.data(), static_cast<int>(text.size()), SQLITE_PREPARE_PERSISTENT,
                           &statement, nullptr) != SQLITE_OK) {
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

bool SqliteDatabase::ReadOnly() const {
    return sqlite3_db_readonly(handle_, "main") == 1;
}

void SqliteDatabase::Throw(std::string_view doing) const {
    throw SqlError(std::string(doing) + ": " + sqlite3_errmsg(handle_));
}

SqliteTransaction::SqliteTransaction(SqliteDatabase& database, SqlMode mode) : database_(database) {
    // Prepared and kept like every other statement, so that a small read does not parse these texts anew.
    database_.Run(mode == SqlMode::Read ? "BEGIN DEFERRED" : "BEGIN IMMEDIATE");
}

bool SqliteTransaction::UnderWay() const {
    return sqlite3_get_autocommit(database_.handle_) == 0;
}

SqliteTransaction::~SqliteTransaction() {
    Undo();
}

void SqliteTransaction::Undo() noexcept {
    if (UnderWay()) {
        sqlite3_exec(database_.handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void SqliteTransaction::Commit() {
    database_.Run("COMMIT");
}

}  // namespace Tarvik::Server
