// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

namespace {

/// Reading connections that are kept when nobody reads.
constexpr std::size_t kMostIdle = 8;

bool IsShared(const std::string& path) {
    return !path.empty() && path != ":memory:";
}

/// The path, behind which stands a file now, made for its owner only if there was none; those beside it get
/// the same rights from the library. One that is there is not even opened: closing it would end the locks
/// that this process has on it.
const std::string& MadePrivate(const std::string& path) {
    const int file = IsShared(path) ? ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600) : -1;
    if (file >= 0) {
        ::close(file);
    }
    return path;
}

}  // namespace

SqliteSession::SqliteSession(const std::string& path, const SqliteSchema& schema,
                             const SqliteOptions& options)
    : path_(MadePrivate(path)), shared_(IsShared(path)), writer_(path), changes_(writer_, options.patience) {
    if (writer_.ReadOnly()) {
        throw SqlError("the data base is read-only: " + path);
    }
    if (options.maxPages > 0) {
        writer_.QueryInteger("PRAGMA max_page_count=" + std::to_string(options.maxPages));
    }
    CheckVersion(writer_, schema);
    writer_.Execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON");
    Migrate(writer_, schema);
    if (shared_) {
        // Files of earlier programs had the rights that the user's mask gave them.
        for (const char* file : {"", "-wal", "-shm"}) {
            ::chmod((path + file).c_str(), 0600);
        }
    }
    idle_.reserve(kMostIdle);
}

void SqliteSession::Transact(SqlMode mode, const Transaction& work) {
    if (mode == SqlMode::Read && shared_) {
        Reader reader(*this);
        SqliteTransaction transaction(reader.Get(), mode);
        if (work(reader.Get())) {
            transaction.Commit();
        }
    } else {
        changes_.Run(mode, work);
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
