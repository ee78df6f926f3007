// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresPool.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Tarvik::Server {

namespace {

/// Whether the data base takes no more connections for now. The library gives a text only.
bool IsFull(std::string_view message) {
    return message.find("too many clients") != std::string_view::npos ||
           message.find("too many connections") != std::string_view::npos ||
           message.find("remaining connection slots") != std::string_view::npos;
}

}  // namespace

PostgresPool::PostgresPool(std::string connectionText, int most, std::chrono::milliseconds patience)
    : connectionText_(std::move(connectionText)), watch_(patience), free_(std::max(most, 1)) {
    idle_.reserve(static_cast<std::size_t>(free_));
}

std::unique_ptr<PostgresConnection> PostgresPool::Take(SqlMode mode) {
    {
        std::unique_lock lock(mutex_);
        const bool freed = freed_.wait_for(lock, kLockPatience, [this] { return free_ > 0 || givenUp_; });
        if (!freed || givenUp_) {
            throw SqlError(givenUp_ ? "the server ends" : "no connection to the data base became free");
        }
        --free_;
    }
    try {
        return Begin(mode);
    } catch (...) {
        GiveBack(nullptr);
        throw;
    }
}

std::unique_ptr<PostgresConnection> PostgresPool::Begin(SqlMode mode) {
    constexpr std::chrono::milliseconds kBeforeNextTry{100};
    const auto end = std::chrono::steady_clock::now() + kLockPatience;
    while (true) {
        if (auto idle = BeginIdle(mode)) {
            return idle;
        }
        try {
            auto made = std::make_unique<PostgresConnection>(connectionText_, &watch_);
            made->Begin(mode);
            return made;
        } catch (const SqlError& failure) {
            if (!IsFull(failure.what()) || std::chrono::steady_clock::now() >= end) {
                throw;
            }
        }
        // Others hold what the data base grants; one of this process may come back before they do.
        std::unique_lock lock(mutex_);
        freed_.wait_for(lock, kBeforeNextTry, [this] { return !idle_.empty() || givenUp_; });
        if (givenUp_) {
            throw SqlError("the server ends");
        }
    }
}

std::unique_ptr<PostgresConnection> PostgresPool::BeginIdle(SqlMode mode) {
    auto idle = TakeIdle();
    if (idle == nullptr) {
        return nullptr;
    }
    try {
        idle->Begin(mode);
        return idle;
    } catch (const SqlError&) {
        // Nothing was asked of it yet, so a new one can take its place, unless the data base is silent.
        DropIdle();
        if (idle->TimedOut()) {
            throw;
        }
        return nullptr;
    }
}

void PostgresPool::GiveUp() {
    {
        const std::scoped_lock lock(mutex_);
        givenUp_ = true;
    }
    freed_.notify_all();
    watch_.GiveUp();
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
    freed_.notify_all();
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
