// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresConnection.h"

#include <map>

#include <pqxx/pqxx>

#include "host/server/storage/postgres/ConnectionText.h"

namespace Tarvik::Server {

namespace {

/// Changes are synced to disk even where the data base is set otherwise. The limits end what would hold locks
/// or threads for ever; a lock is held for one request only, so who waits long waits for something broken.
constexpr const char* kSessionSettings =
    "SELECT current_setting('server_encoding') = 'UTF8', "
    "set_config('synchronous_commit', CASE current_setting('synchronous_commit') WHEN 'off' THEN 'on' "
    "ELSE current_setting('synchronous_commit') END, false), "
    "set_config('lock_timeout', '10s', false), set_config('statement_timeout', '30s', false), "
    "set_config('idle_in_transaction_session_timeout', '30s', false), "
    "set_config('client_min_messages', 'warning', false), set_config('extra_float_digits', '1', false)";

/// A connection that broke must be made anew by its owner, who also knows what was lost with it; by itself
/// the library would connect again within the next call.
void ForbidReconnecting(pqxx::connection& connection) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    connection.inhibit_reactivation(true);
#pragma GCC diagnostic pop
}

}  // namespace

struct PostgresConnection::Link {
    explicit Link(const std::string& text) : connection(text) {
        ForbidReconnecting(connection);
        // Details cite values, which are nobody else's business.
        connection.set_verbosity(pqxx::connection_base::terse);
    }

    pqxx::connection connection;
    pqxx::quiet_errorhandler quiet{connection};
    std::unique_ptr<pqxx::transaction_base> transaction;
    std::map<std::string, std::string, std::less<>> prepared;
    bool broken = false;
};

template <class Operation>
auto PostgresConnection::Guarded(Operation&& operation) -> decltype(operation()) {
    try {
        return operation();
    } catch (const pqxx::sql_error& error) {
        throw PostgresError(WithoutSecrets(error.what(), connectionText_));
    } catch (const PostgresError&) {
        throw;
    } catch (const std::exception& error) {
        if (link_ != nullptr) {
            link_->broken = true;
        }
        throw PostgresError(WithoutSecrets(error.what(), connectionText_));
    }
}

PostgresConnection::PostgresConnection(const std::string& connectionText) : connectionText_(connectionText) {
    const std::string complete = CompleteConnection(connectionText_);
    Guarded([&] { link_ = std::make_unique<Link>(complete); });
    Begin(Mode::Write);
    const bool utf8 = Execute(kSessionSettings).Flag(0, 0);
    Commit();
    if (!utf8) {
        throw PostgresError("the data base does not keep its texts in UTF-8");
    }
}

PostgresConnection::~PostgresConnection() = default;

void PostgresConnection::Begin(Mode mode) {
    Guarded([&] {
        using Reading = pqxx::transaction<pqxx::repeatable_read, pqxx::read_only>;
        if (mode == Mode::Write) {
            link_->transaction = std::make_unique<pqxx::work>(link_->connection);
        } else {
            link_->transaction = std::make_unique<Reading>(link_->connection);
        }
    });
}

void PostgresConnection::Commit() {
    Guarded([&] {
        link_->transaction->commit();
        link_->transaction.reset();
    });
}

void PostgresConnection::Rollback() noexcept {
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

const std::string& PostgresConnection::Prepared(std::string_view sql) {
    const auto known = link_->prepared.find(sql);
    if (known != link_->prepared.end()) {
        return known->second;
    }
    const std::string name = "s" + std::to_string(link_->prepared.size());
    link_->connection.prepare(name, std::string(sql));
    return link_->prepared.emplace(sql, name).first->second;
}

bool PostgresConnection::Usable() const noexcept {
    return !link_->broken && link_->connection.is_open();
}

}  // namespace Tarvik::Server
