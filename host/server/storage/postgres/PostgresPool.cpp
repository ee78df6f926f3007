// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresPool.h"

#include <algorithm>
#include <utility>

namespace Tarvik::Server {

PostgresPool::PostgresPool(std::string connectionText, int most)
    : connectionText_(std::move(connectionText)), free_(std::max(most, 1)) {
    idle_.reserve(static_cast<std::size_t>(free_));
}

std::unique_ptr<PostgresConnection> PostgresPool::Take(SqlMode mode) {
    {
        std::unique_lock lock(mutex_);
        freed_.wait(lock, [this] { return free_ > 0; });
        --free_;
    }
    try {
        return begin(mode);
    } catch (...) {
        GiveBack(nullptr);
        throw;
    }
}

std::unique_ptr<PostgresConnection> PostgresPool::begin(SqlMode mode) {
    if (auto idle = TakeIdle()) {
        try {
            idle->Begin(mode);
            return idle;
        } catch (const SqlError&) {
            // Nothing was asked of it yet, so a new one can take its place.
            DropIdle();
        }
    }
    auto made = std::make_unique<PostgresConnection>(connectionText_);
    made->Begin(mode);
    return made;
}

void PostgresPool::GiveBack(std::unique_ptr<PostgresConnection> connection) noexcept {
    if (connection != nullptr) {
        connection->Rollback();
        if (!connection->Usable()) {
            connection.reset();
            DropIdle();
        }
    }
    {
        const std::scoped_lock lock(mutex_);
        if (connection != nullptr) {
            idle_.push_back(std::move(connection));
        }
        ++free_;
    }
    freed_.notify_one();
}

std::unique_ptr<PostgresConnection> PostgresPool::TakeIdle() {
    const std::scoped_lock lock(mutex_);
    if (idle_.empty()) {
        return nullptr;
    }
    auto connection = std::move(idle_.back());
    idle_.pop_back();
    return connection;
}

void PostgresPool::DropIdle() noexcept {
    std::vector<std::unique_ptr<PostgresConnection>> dropped;
    {
        const std::scoped_lock lock(mutex_);
        dropped.swap(idle_);
    }
}

}  // namespace Tarvik::Server
