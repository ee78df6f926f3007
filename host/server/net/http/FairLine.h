// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/this_coro.hpp>
#include <boost/asio/use_awaitable.hpp>

namespace Tarvik::Server {

/// Who waits for one of a few places. Those of one key come in their order, and keys take turns, so that
/// nobody gets more places by asking more often. Belongs to the thread that reads and writes.
class FairLine {
  public:
    /// `most` may wait at the same time.
    FairLine(std::size_t places, std::size_t most) : free_(places), most_(most) {}
    FairLine(const FairLine&) = delete;
    FairLine& operator=(const FairLine&) = delete;

    /// Takes a place, or waits for one. False at once when too many wait.
    boost::asio::awaitable<bool> Enter(std::string key) {
        if (free_ > 0) {
            --free_;
            co_return true;
        }
        if (waiting_ >= most_) {
            co_return false;
        }
        const auto executor = co_await boost::asio::this_coro::executor;
        Waiter waiter(*this, std::move(key), executor);
        boost::system::error_code called;
        co_await waiter.timer.async_wait(boost::asio::redirect_error(boost::asio::use_awaitable, called));
        co_return true;
    }

    /// Gives the place to the first one of the key whose turn it is.
    void Leave() {
        if (turns_.empty()) {
            ++free_;
            return;
        }
        const auto line = lines_.find(turns_.front());
        turns_.pop_front();
        Waiter* next = line->second.front();
        Take(*next);
        if (lines_.contains(next->key)) {
            turns_.push_back(next->key);
        }
        next->called = true;
        next->timer.cancel();
    }

    std::size_t Waiting() const { return waiting_; }

  private:
    /// Stands in the line of its key until it is called, or its request is given up.
    struct Waiter {
        template <class Executor>
        Waiter(FairLine& inLine, std::string ownKey, const Executor& executor)
            : line(inLine),
              key(std::move(ownKey)),
              timer(executor, boost::asio::steady_timer::time_point::max()) {
            std::deque<Waiter*>& same = line.lines_[key];
            if (same.empty()) {
                line.turns_.push_back(key);
            }
            same.push_back(this);
            ++line.waiting_;
        }
        ~Waiter() {
            if (called) {
                return;
            }
            line.Take(*this);
            if (!line.lines_.contains(key)) {
                std::erase(line.turns_, key);
            }
        }
        Waiter(const Waiter&) = delete;
        Waiter& operator=(const Waiter&) = delete;

        FairLine& line;
        std::string key;
        boost::asio::steady_timer timer;
        bool called = false;
    };

    void Take(Waiter& waiter) {
        const auto line = lines_.find(waiter.key);
        std::erase(line->second, &waiter);
        if (line->second.empty()) {
            lines_.erase(line);
        }
        --waiting_;
    }

    std::size_t free_;
    std::size_t most_;
    std::size_t waiting_ = 0;
    std::map<std::string, std::deque<Waiter*>> lines_;  ///< by key, none empty
    std::deque<std::string> turns_;                     ///< each key of `lines_` once
};

}  // namespace Tarvik::Server
