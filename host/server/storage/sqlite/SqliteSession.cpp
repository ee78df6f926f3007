// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteSession.h"

#include <utility>

namespace Tarvik::Server {

namespace {

/// Reading connections that are kept when nobody reads.
constexpr std::size_t kMostIdle = 8;

void RunIn(SqliteDatabase& database, SqlMode mode, const std::function<bool(SqlConnection&)>& work) {
    SqliteTransaction transaction(database, mode);
    if (work(database)) {
        transaction.Commit();
    }
}

}  // namespace

SqliteSession::SqliteSession(const std::string& path, const SqliteSchema& schema,
                             const SqliteOptions& options)
    : path_(path), shared_(!path.empty() && path != ":memory:"), writer_(path) {
    if (writer_.ReadOnly()) {
        throw SqlError("the data base is read-only: " + path);
    }
    if (options.maxPages > 0) {
        writer_.QueryInteger("PRAGMA max_page_count=" + std::to_string(options.maxPages));
    }
    CheckVersion(writer_, schema);
    writer_.Execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON");
    Migrate(writer_, schema);
    idle_.reserve(kMostIdle);
}

void SqliteSession::Transact(SqlMode mode, const Transaction& work) {
    if (mode == SqlMode::Read && shared_) {
        Reader reader(*this);
        RunIn(reader.Get(), mode, work);
    } else {
        const std::scoped_lock lock(writing_);
        RunIn(writer_, mode, work);
    }
}

std::unique_ptr<SqliteDatabase> SqliteSession::TakeReader() {
    {
        const std::scoped_lock lock(pooling_);
        if (!idle_.empty()) {
            auto reader = std::move(idle_.back());
            idle_.pop_back();
            return reader;
        }
    }
    auto reader = std::make_unique<SqliteDatabase>(path_);
    reader->Execute("PRAGMA query_only=ON");
    return reader;
}

void SqliteSession::GiveBack(std::unique_ptr<SqliteDatabase> reader) noexcept {
    const std::scoped_lock lock(pooling_);
    if (idle_.size() < kMostIdle) {
        idle_.push_back(std::move(reader));
    }
}

}  // namespace Tarvik::Server
