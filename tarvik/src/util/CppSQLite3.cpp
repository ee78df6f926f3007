// SPDX-License-Identifier: MIT
#include <utility>

#include <sqlite3.h>

#include <tarvik/util/CppSQLite3.h>

namespace Tarvik::Util {

CppSQLite3Query::CppSQLite3Query(CppSQLite3Query&& other) noexcept
    : statement_(std::exchange(other.statement_, nullptr)), eof_(std::exchange(other.eof_, true)) {}

CppSQLite3Query& CppSQLite3Query::operator=(CppSQLite3Query&& other) noexcept {
    if (this != &other) {
        finalize();
        statement_ = std::exchange(other.statement_, nullptr);
        eof_ = std::exchange(other.eof_, true);
    }
    return *this;
}

CppSQLite3Query::~CppSQLite3Query() {
    finalize();
}

const char* CppSQLite3Query::fieldValue(int column) const {
    if (eof_ || column < 0 || column >= sqlite3_column_count(statement_)) {
        return nullptr;
    }
    return reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
}

void CppSQLite3Query::nextRow() {
    if (statement_ == nullptr) {
        throw CppSQLite3Exception("no query");
    }
    const int code = sqlite3_step(statement_);
    eof_ = code != SQLITE_ROW;
    if (code == SQLITE_ROW || code == SQLITE_DONE) {
        return;
    }
    std::string message = sqlite3_errmsg(sqlite3_db_handle(statement_));
    finalize();
    throw CppSQLite3Exception(std::move(message));
}

void CppSQLite3Query::finalize() {
    sqlite3_finalize(statement_);
    statement_ = nullptr;
    eof_ = true;
}

CppSQLite3DB::~CppSQLite3DB() {
    close();
}

void CppSQLite3DB::open(const std::string& path) {
    close();
    if (sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        std::string message = database_ != nullptr ? sqlite3_errmsg(database_) : "out of memory";
        close();
        throw CppSQLite3Exception(std::move(message));
    }
    // Opening alone does not touch the file; the first read tells whether it is a data base at all.
    try {
        execQuery("PRAGMA schema_version");
    } catch (const CppSQLite3Exception&) {
        close();
        throw;
    }
}

CppSQLite3Query CppSQLite3DB::execQuery(const char* sql) {
    if (database_ == nullptr) {
        throw CppSQLite3Exception("no data base is open");
    }
    CppSQLite3Query query;
    if (sqlite3_prepare_v2(database_, sql, -1, &query.statement_, nullptr) != SQLITE_OK) {
        throw CppSQLite3Exception(sqlite3_errmsg(database_));
    }
    if (query.statement_ != nullptr) {
        query.nextRow();
    }
    return query;
}

// Queries that still live keep the connection until they end.
void CppSQLite3DB::close() {
    sqlite3_close_v2(database_);
    database_ = nullptr;
}

}  // namespace Tarvik::Util
