// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/server/storage/sqlite/SqliteDatabase.h"

struct sqlite3_stmt;

namespace Tarvik::Server {

/// One prepared statement, whose text outlives it. Columns count from 0; operations throw SqliteError.
class SqliteStatement {
  public:
    SqliteStatement(SqliteDatabase& database, std::string_view sql);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;

    /// Binds all values in their order, after a reset.
    template <class... Values>
    SqliteStatement& Bind(const Values&... values) {
        if (used_) {
            Reset();
        }
        used_ = true;
        int place = 0;
        (BindOne(++place, values), ...);
        return *this;
    }
    /// Goes to the next row; false when there is none.
    bool Step();
    /// Runs a statement that gives no rows; gives the count of rows that it touched.
    int Run();

    std::int64_t Integer(int column) const;
    std::int32_t Integer32(int column) const { return static_cast<std::int32_t>(Integer(column)); }
    double Real(int column) const;
    std::string Text(int column) const;

  private:
    void Reset();
    void BindOne(int place, std::string_view text);
    void BindOne(int place, double number);
    void BindInteger(int place, std::int64_t number);
    template <std::integral Number>
    void BindOne(int place, Number number) {
        BindInteger(place, static_cast<std::int64_t>(number));
    }

    SqliteDatabase& database_;
    std::string_view sql_;
    sqlite3_stmt* handle_;
    bool used_ = false;  ///< whether values or rows of an earlier run may be left
};

}  // namespace Tarvik::Server
