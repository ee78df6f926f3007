// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/Beside.h"

#include <QThreadPool>
#include <algorithm>
#include <atomic>
#include <deque>

namespace Tarvik::Seamap {

Beside::Beside(const std::function<void()>& task) : ended_(std::make_shared<QSemaphore>()) {
    // The thread holds a share of what tells the end: it may still be at it when the maker has gone on.
    const auto run = [ended = ended_, task] {
        task();
        ended->release();
    };
    if (!QThreadPool::globalInstance()->tryStart(run)) {
        run();
    }
}

void Beside::Wait() {
    if (!waited_) {
        ended_->acquire();
        waited_ = true;
    }
}

void Beside::Each(std::size_t count, const std::function<void(std::size_t)>& task) {
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            task(i);
        }
    };
    std::deque<Beside> helpers;
    const auto threads = static_cast<std::size_t>(QThreadPool::globalInstance()->maxThreadCount());
    for (std::size_t i = 1; i < std::min(threads, count); ++i) {
        helpers.emplace_back(work);
    }
    work();
}

}  // namespace Tarvik::Seamap
