// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "host/server/storage/postgres/PostgresValues.h"
#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

/// Rows that came all at once, walked one after the other.
class PostgresWalk final : public SqlRows {
  public:
    explicit PostgresWalk(PostgresRows rows) : rows_(std::move(rows)) {}

    bool Next() override { return ++row_ < rows_.Count(); }
    std::string Text(int column) const override { return rows_.Text(row_, column); }
    std::int64_t Integer(int column) const override { return rows_.Integer(row_, column); }
    double Real(int column) const override { return rows_.Real(row_, column); }
    bool Flag(int column) const override { return rows_.Flag(row_, column); }

  private:
    PostgresRows rows_;
    int row_ = -1;
};

}  // namespace Tarvik::Server
