// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/server/storage/postgres/PostgresError.h"
#include "host/server/storage/postgres/PostgresRows.h"
#include "host/server/storage/postgres/PostgresText.h"

namespace Tarvik::Server {

/// One connection to a data base server, used by one thread at a time. Operations throw PostgresError.
/// Statements run within a transaction; places for values are $1, $2 and so on.
class PostgresConnection {
  public:
    /// A writing transaction sees, in each statement, what others have committed before that statement, so
    /// that it reads the present once it holds a lock. A reading one sees one moment throughout.
    enum class Mode { Read, Write };

    /// Connects; refuses a data base that does not keep its texts in UTF-8.
    explicit PostgresConnection(const std::string& connectionText);
    ~PostgresConnection();
    PostgresConnection(const PostgresConnection&) = delete;
    PostgresConnection& operator=(const PostgresConnection&) = delete;

    void Begin(Mode mode);
    /// The changes are on the server's disk when this returns. When it throws because the connection broke,
    /// they may be there or not.
    void Commit();
    /// Undoes what was not committed; without effect when there is no transaction.
    void Rollback() noexcept;

    /// Runs a statement. It is prepared and kept for the next time, so the texts must be few.
    template <class... Values>
    PostgresRows Run(std::string_view sql, const Values&... values) {
        return RunTexts(sql, {PostgresText(values)...});
    }
    /// Runs all statements of a text that is used once.
    PostgresRows Execute(const std::string& sql);
    /// False once the connection is broken; then it can only be ended.
    bool Usable() const noexcept;

  private:
    struct Link;

    PostgresRows RunTexts(std::string_view sql, const std::vector<std::string>& values);
    /// The name of the prepared statement.
    const std::string& Prepared(std::string_view sql);
    template <class Operation>
    auto Guarded(Operation&& operation) -> decltype(operation());

    std::string connectionText_;
    std::unique_ptr<Link> link_;
};

}  // namespace Tarvik::Server
