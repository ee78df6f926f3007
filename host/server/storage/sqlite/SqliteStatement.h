// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/server/storage/sqlite/SqliteDatabase.h"

struct sqlite3_stmt;

namespace Tarvik::Server {

/// One prepared statement, whose text outlives it. Operations throw SqlError.
class SqliteStatement final : public SqlRows {
  public:
    SqliteStatement(SqliteDatabase& database, std::string_view sql);
    ~SqliteStatement() override;

    /// Binds all values in their order, after a reset.
    void Bind(std::span<const SqlValue> values);
    bool Next() override;
    /// Runs a statement that gives no rows; gives the count of rows that it touched.
    int Run();

    std::string Text(int column) const override;
    std::int64_t Integer(int column) const override;
    double Real(int column) const override;
    bool Flag(int column) const override { return Integer(column) != 0; }

  private:
    /// Gives what the library says of it.
    int BindOne(int place, const SqlValue& value);

    SqliteDatabase& database_;
    std::string_view sql_;
    sqlite3_stmt* handle_;
    bool used_ = false;  ///< whether values or rows of an earlier run may be left
};

}  // namespace Tarvik::Server
