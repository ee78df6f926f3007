// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresConnection.h"

#include <array>
#include <map>

#include <pqxx/pqxx>

#include "host/server/storage/postgres/PostgresValues.h"
#include "host/server/storage/sql/SqlDialect.h"

namespace Tarvik::Server {

namespace {

/// A text of any length has its digest in the index, which is therefore asked for too.
constexpr std::array<SqlPoint, 6> kPoints = {{
    {"next id", "SELECT nextval('ids')"},
    {"touch", "UPDATE schema_version SET version = version"},
    {"hold", "FOR UPDATE OF %"},
    {"share", "FOR SHARE OF %"},
    {"free", "FOR UPDATE OF % SKIP LOCKED"},
    {"object", "md5(objectid) = md5(CAST(% AS text)) AND objectid = %"},
}};

std::vector<std::string> TextsOf(std::span<const SqlValue> values) {
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const SqlValue& value : values) {
        texts.push_back(PostgresText(value));
    }
    return texts;
}

/// Changes are synced to disk even where the data base is set otherwise. The limits end what would hold locks
/// or threads for ever; a lock is held for one request only, so who waits long waits for something broken.
std::string SessionSettings() {
    const auto seconds = [](std::chrono::seconds time) { return std::to_string(time.count()) + "s"; };
    return "SELECT current_setting('server_encoding') = 'UTF8', "
           "set_config('synchronous_commit', CASE current_setting('synchronous_commit') WHEN 'off' THEN 'on' "
           "ELSE current_setting('synchronous_commit') END, false), "
           "set_config('lock_timeout', '" +
           seconds(kLockPatience) + "', false), set_config('statement_timeout', '" +
           seconds(kStatementPatience) +
           "', false), "
           "set_config('idle_in_transaction_session_timeout', '30s', false), "
           "set_config('client_min_messages', 'warning', false), set_config('extra_float_digits', '1', "
           "false)";
}

/// Whether the data base ends the connection behind this error: its last words come before its end is seen.
bool EndsConnection(const pqxx::sql_error& error) {
    return error.sqlstate().starts_with("57P") || error.sqlstate().starts_with("08");
}

/// A connection that broke must be made anew by its owner, who also knows what was lost with it; by itself
/// the library would connect again within the next call.
void ForbidReconnecting(pqxx::connection& connection) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    connection.inhibit_reactivation(true);
#pragma GCC diagnostic pop
}

/// Lets the connection be watched for its scope.
class Asking {
  public:
    explicit Asking(PostgresWatch::Line* line) : line_(line) {
        if (line_ != nullptr) {
            line_->Begin();
        }
    }
    ~Asking() {
        if (line_ != nullptr) {
            line_->End();
        }
    }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

  private:
    PostgresWatch::Line* line_;
};

}  // namespace

struct PostgresConnection::Link {
    Link(const std::string& text, PostgresWatch* watch) : connection(text), line(watch, connection.sock()) {
        ForbidReconnecting(connection);
        // Details cite values, which are nobody else's business.
        connection.set_verbosity(pqxx::connection_base::terse);
    }

    pqxx::connection connection;
    pqxx::quiet_errorhandler quiet{connection};
    std::unique_ptr<pqxx::transaction_base> transaction;
    std::map<std::string, std::string, std::less<>> prepared;
    PostgresWatch::Line line;
    bool broken = false;
};

template <class Operation>
auto PostgresConnection::Guarded(Operation&& operation) -> decltype(operation()) {
    try {
        const Asking asking(link_ != nullptr ? &link_->line : nullptr);
        return operation();
    } catch (const pqxx::sql_error& error) {
        if (EndsConnection(error)) {
            link_->broken = true;
        }
        throw SqlError(WithoutSecrets(error.what(), connectionText_));
    } catch (const SqlError&) {
        throw;
    } catch (const std::exception& error) {
        if (link_ != nullptr) {
            link_->broken = true;
        }
        if (TimedOut()) {
            throw SqlError("the data base did not answer in time");
        }
        throw SqlError(WithoutSecrets(error.what(), connectionText_));
    }
}

PostgresConnection::PostgresConnection(const std::string& connectionText, PostgresWatch* watch)
    : connectionText_(connectionText) {
    const std::string complete = CompleteConnection(connectionText_);
    Guarded([&] { link_ = std::make_unique<Link>(complete, watch); });
    Begin(Mode::Write);
    const bool utf8 = Execute(SessionSettings()).Flag(0, 0);
    Commit();
    if (!utf8) {
        throw SqlError("the data base does not keep its texts in UTF-8");
    }
}

PostgresConnection::~PostgresConnection() = default;

void PostgresConnection::Begin(Mode mode) {
    link_->line.AllowAnyTime(false);
    Guarded([&] {
        using Reading = pqxx::transaction<pqxx::repeatable_read, pqxx::read_only>;
        if (mode == Mode::Read) {
            link_->transaction = std::make_unique<Reading>(link_->connection);
        } else {
            link_->transaction = std::make_unique<pqxx::work>(link_->connection);
        }
    });
}

void PostgresConnection::Commit() {
    try {
        Guarded([&] {
            link_->transaction->commit();
            link_->transaction.reset();
        });
    } catch (const SqlError& failure) {
        if (!Usable()) {
            throw SqlDoubt(failure.what());
        }
        throw;
    }
}

void PostgresConnection::Rollback() noexcept {
    const Asking asking(&link_->line);
    link_->transaction.reset();
}

PostgresRows PostgresConnection::Execute(const std::string& sql) {
    return Guarded(
        [&] { return PostgresRows(std::make_shared<pqxx::result>(link_->transaction->exec(sql))); });
}

PostgresRows PostgresConnection::RunTexts(std::string_view sql, const std::vector<std::string>& values) {
    return Guarded([&] {
        return PostgresRows(std::make_shared<pqxx::result>(
            link_->transaction->exec_prepared(Prepared(sql), pqxx::prepare::make_dynamic_params(values))));
    });
}

std::unique_ptr<SqlRows> PostgresConnection::QueryWith(std::string_view sql,
                                                       std::span<const SqlValue> values) {
    return std::make_unique<PostgresWalk>(RunTexts(sql, TextsOf(values)));
}

int PostgresConnection::RunWith(std::string_view sql, std::span<const SqlValue> values) {
    return RunTexts(sql, TextsOf(values)).Changes();
}

std::optional<std::int32_t> PostgresConnection::Insert(const SqlBatch& batch) {
    const PostgresBatch made = MakeBatch(batch);
    return FirstTaken(batch, RunTexts(made.sql, made.values));
}

std::int64_t PostgresConnection::NextId() {
    return Execute("SELECT CASE WHEN is_called THEN last_value + 1 ELSE last_value END FROM ids")
        .Integer(0, 0);
}

bool PostgresConnection::SkipIds(std::int64_t lowest, std::int64_t highest) {
    if (NextId() > lowest) {
        return false;
    }
    // Changing the sequence locks it; the id is looked at again under the lock.
    Execute("ALTER SEQUENCE ids NO CYCLE");
    if (NextId() > lowest) {
        return false;
    }
    Execute("ALTER SEQUENCE ids RESTART WITH " + std::to_string(highest + 1));
    return true;
}

const std::string& PostgresConnection::Prepared(std::string_view sql) {
    const auto known = link_->prepared.find(sql);
    if (known != link_->prepared.end()) {
        return known->second;
    }
    const std::string name = "s" + std::to_string(link_->prepared.size());
    link_->connection.prepare(name, WithPoints(sql, kPoints));
    return link_->prepared.emplace(sql, name).first->second;
}

void PostgresConnection::AllowAnyTime() {
    link_->line.AllowAnyTime(true);
}

bool PostgresConnection::TimedOut() const noexcept {
    return link_ != nullptr && link_->line.TimedOut();
}

bool PostgresConnection::Usable() const noexcept {
    return !link_->broken && link_->connection.is_open();
}

}  // namespace Tarvik::Server
