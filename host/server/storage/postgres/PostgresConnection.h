// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/server/storage/postgres/PostgresValues.h"
#include "host/server/storage/postgres/PostgresWatch.h"
#include "host/server/storage/sql/SqlSession.h"

namespace Tarvik::Server {

/// What is wrong with the text that says where a data base is: `key=value` pairs or a `postgresql://`
/// address. Empty when nothing is. Never cites the text, since that may hold a password.
std::string ComplaintAboutConnection(const std::string& text);

/// The connection text as `key=value` pairs, with limits of time where it states none, so that a lost network
/// ends a call. Throws SqlError for a text that there is a complaint about.
std::string CompleteConnection(const std::string& text);

/// Host, port, data base and user of a connection text, as far as it names them, for people to read.
std::string DescribeConnection(const std::string& text);

/// `message` as one line in which every secret of the connection text is replaced.
std::string WithoutSecrets(std::string message, const std::string& text);

/// One connection to a data base server. Operations throw SqlError.
class PostgresConnection : public SqlConnection {
  public:
    /// A writing transaction sees, in each statement, what others have committed before that statement, so
    /// that it reads the present once it holds a lock. A reading one sees one moment throughout.
    using Mode = SqlMode;

    /// Connects; refuses a data base that does not keep its texts in UTF-8.
    /// `watch` outlives the connection; null for none, and then a data base may hang for ever.
    explicit PostgresConnection(const std::string& connectionText, PostgresWatch* watch = nullptr);
    ~PostgresConnection() override;

    void Begin(Mode mode);
    /// The changes are on the server's disk when this returns. Throws SqlDoubt when the connection broke:
    /// they may be there or not.
    void Commit();
    /// Undoes what was not committed; without effect when there is no transaction.
    void Rollback() noexcept;

    /// Runs all statements of a text that is used once, within a transaction.
    PostgresRows Execute(const std::string& sql);
    /// In the rest of the transaction the data base may take any time for an answer.
    void AllowAnyTime();
    /// Whether the connection was broken because the data base was silent for too long.
    bool TimedOut() const noexcept;
    /// False once the connection is broken; then it can only be ended.
    bool Usable() const noexcept;

    std::optional<std::int32_t> Insert(const SqlBatch& batch) override;
    bool SkipIds(std::int64_t lowest, std::int64_t highest) override;

  protected:
    std::unique_ptr<SqlRows> QueryWith(std::string_view sql, std::span<const SqlValue> values) override;
    int RunWith(std::string_view sql, std::span<const SqlValue> values) override;

  private:
    struct Link;

    PostgresRows RunTexts(std::string_view sql, const std::vector<std::string>& values);
    /// The name of the prepared statement.
    const std::string& Prepared(std::string_view sql);
    std::int64_t NextId();
    template <class Operation>
    auto Guarded(Operation&& operation) -> decltype(operation());

    std::string connectionText_;
    std::unique_ptr<Link> link_;
};

/// The steps that lead from an empty schema to the present tables, made from the numbered files in
/// migrations/; step i leads from version i to version i + 1. A step that was released never changes.
const std::vector<std::string_view>& PostgresMigrations();

/// Brings the tables of the connection's schema to the present version, within its writing transaction.
/// Processes that start at the same time do so one after the other. Throws SqlError, with nothing changed,
/// when the data base is of a newer version than this program or holds another program's tables.
void MigratePostgres(PostgresConnection& connection);

}  // namespace Tarvik::Server
