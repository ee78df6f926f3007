// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/sqlite/SqliteError.h"

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3;

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

  private:
    sqlite3* handle_ = nullptr;
};

}  // namespace Tarvik::Server
