// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace pqxx {
class result;
}

namespace Tarvik::Server {

/// What a statement gave. Rows and columns count from 0; a value that is not of the asked type throws
/// PostgresError.
class PostgresRows {
  public:
    explicit PostgresRows(std::shared_ptr<const pqxx::result> result) : result_(std::move(result)) {}

    int Count() const;
    bool Empty() const { return Count() == 0; }
    /// Rows that an INSERT, UPDATE or DELETE touched.
    int Changes() const;

    std::string Text(int row, int column) const;
    std::int64_t Integer(int row, int column) const;
    std::int32_t Integer32(int row, int column) const {
        return static_cast<std::int32_t>(Integer(row, column));
    }
    double Real(int row, int column) const;
    bool Flag(int row, int column) const;

  private:
    std::shared_ptr<const pqxx::result> result_;
};

}  // namespace Tarvik::Server
