// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "host/server/storage/sqlite/SqliteError.h"

struct sqlite3;
struct sqlite3_stmt;

namespace Tarvik::Server {

/// One open data base file. Operations throw SqliteError with an English text.
class SqliteDatabase {
  public:
    /// Opens the file, which is made when there is none.
    explicit SqliteDatabase(const std::string& path);
    ~SqliteDatabase();
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    /// Runs every statement of the text.
    void Execute(std::string_view sql);
    /// The first column of the only row that the text gives.
    std::int64_t QueryInteger(std::string_view sql);
    /// Rows that the last statement touched.
    int Changes() const;
    bool InTransaction() const;
    bool ReadOnly() const;
    /// Throws what went wrong last, with `doing` before it.
    [[noreturn]] void Throw(std::string_view doing) const;
    sqlite3* Handle() const { return handle_; }

    /// A prepared statement that nobody else holds until it is returned. Statements are kept for the next
    /// one who asks, so their texts must be few.
    sqlite3_stmt* Borrow(std::string_view sql);
    /// Takes back a statement, wherever it stands.
    void Return(std::string_view sql, sqlite3_stmt* statement) noexcept;

  private:
    sqlite3* handle_ = nullptr;
    std::map<std::string, sqlite3_stmt*, std::less<>> statements_;  ///< null while lent
};

}  // namespace Tarvik::Server
