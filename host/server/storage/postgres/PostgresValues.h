// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/server/storage/sql/SqlConnection.h"

namespace pqxx {
class result;
}

namespace Tarvik::Server {

/// A value as the data base server reads it, independent of any locale; a number reads back as the same to
/// the bit. Throws SqlError for a text with a zero byte, behind which the data base would lose the rest.
std::string PostgresText(const SqlValue& value);

/// Adds one element to the text of an array, which begins as "{" and gets its "}" from the caller.
void AppendElement(std::string& array, std::string_view element);

/// What a statement gave, all of it. Rows and columns count from 0; a value that is not of the asked type
/// throws SqlError.
class PostgresRows {
  public:
    explicit PostgresRows(std::shared_ptr<const pqxx::result> result) : result_(std::move(result)) {}

    int Count() const;
    /// Rows that an INSERT, UPDATE or DELETE touched.
    int Changes() const;

    std::string Text(int row, int column) const;
    std::int64_t Integer(int row, int column) const;
    double Real(int row, int column) const;
    bool Flag(int row, int column) const;

  private:
    std::shared_ptr<const pqxx::result> result_;
};

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

/// A batch as one statement with one array a column, so that it costs one way to the server.
struct PostgresBatch {
    std::string sql;  ///< gives the numbers that were free
    std::vector<std::string> values;
};

/// The rows go in in the order of their numbers: who inserts keys in one order cannot wait in a circle.
PostgresBatch MakeBatch(const SqlBatch& batch);

/// The first number of the batch that is not among those that went in, each of which stands for one row only.
std::optional<std::int32_t> FirstTaken(const SqlBatch& batch, const PostgresRows& inserted);

}  // namespace Tarvik::Server
