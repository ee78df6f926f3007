// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresWatch.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Tarvik::Server {

using Clock = std::chrono::steady_clock;

PostgresWatch::Line::Line(PostgresWatch* watch, int socket) : watch_(watch) {
    if (watch_ == nullptr) {
        return;
    }
    // A handle of its own: the library may close its one, and its number be another's, while it is watched.
    socket_ = ::fcntl(socket, F_DUPFD_CLOEXEC, 0);
    const std::scoped_lock lock(watch_->mutex_);
    watch_->lines_.insert(this);
    if (watch_->givenUp_) {
        Break();
    }
}

PostgresWatch::Line::~Line() {
    if (watch_ == nullptr) {
        return;
    }
    {
        const std::scoped_lock lock(watch_->mutex_);
        watch_->lines_.erase(this);
    }
    if (socket_ >= 0) {
        ::close(socket_);
    }
}

void PostgresWatch::Line::Begin() {
    if (!patient_) {
        since_ = Clock::now().time_since_epoch().count();
    }
}

void PostgresWatch::Line::Break() {
    ::shutdown(socket_, SHUT_RDWR);
}

PostgresWatch::PostgresWatch(std::chrono::milliseconds patience)
    : patience_(patience), looker_([this] { Look(); }) {}

PostgresWatch::~PostgresWatch() {
    {
        const std::scoped_lock lock(mutex_);
        ended_ = true;
    }
    changed_.notify_all();
    looker_.join();
}

void PostgresWatch::GiveUp() {
    const std::scoped_lock lock(mutex_);
    givenUp_ = true;
    for (Line* line : lines_) {
        line->Break();
    }
}

void PostgresWatch::Look() {
    const Clock::duration pause = std::min<Clock::duration>(patience_ / 4, std::chrono::milliseconds(500));
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, pause, [this] { return ended_; })) {
        const Clock::rep latest = (Clock::now() - patience_).time_since_epoch().count();
        for (Line* line : lines_) {
            const Clock::rep since = line->since_;
            if (since != 0 && since < latest && !line->timedOut_) {
                line->timedOut_ = true;
                line->Break();
            }
        }
    }
}

}  // namespace Tarvik::Server
