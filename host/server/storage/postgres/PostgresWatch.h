// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

namespace Tarvik::Server {

/// Breaks connections whose data base has been silent for too long, so that nobody waits for it for ever: the
/// limits that a statement has within the data base do not hold when that hangs itself. Safe to call from any
/// thread.
class PostgresWatch {
  public:
    explicit PostgresWatch(std::chrono::milliseconds patience);
    ~PostgresWatch();
    PostgresWatch(const PostgresWatch&) = delete;
    PostgresWatch& operator=(const PostgresWatch&) = delete;

    /// One connection under watch, by a socket handle of its own.
    class Line {
      public:
        /// `watch` may be null; then nothing is watched. Both outlive this.
        Line(PostgresWatch* watch, int socket);
        ~Line();
        Line(const Line&) = delete;
        Line& operator=(const Line&) = delete;

        /// The data base is asked something, or has answered.
        void Begin();
        void End() { since_ = 0; }
        /// Whether an answer may take any time from the next question on.
        void AllowAnyTime(bool allow) { patient_ = allow; }
        /// Whether the connection was broken for its silence.
        bool TimedOut() const { return timedOut_; }

      private:
        friend class PostgresWatch;
        void Break();

        PostgresWatch* watch_;
        int socket_ = -1;
        bool patient_ = false;
        std::atomic<std::chrono::steady_clock::rep> since_{0};
        std::atomic<bool> timedOut_{false};
    };

    /// Breaks all connections, also those that are still to come.
    void GiveUp();

  private:
    void Look();

    std::chrono::steady_clock::duration patience_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::set<Line*> lines_;
    bool givenUp_ = false;
    bool ended_ = false;
    std::thread looker_;
};

}  // namespace Tarvik::Server
