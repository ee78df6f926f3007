// SPDX-License-Identifier: MIT
#include <QTimerEvent>
#include <utility>

#include "host/client/shell/QtServices.h"

namespace Tarvik::Client {

unsigned QtTimerService::Start(int periodMs, std::function<void()> callback) {
    const int id = startTimer(periodMs, Qt::CoarseTimer);
    callbacks_[id] = std::move(callback);
    return static_cast<unsigned>(id);
}

void QtTimerService::Stop(unsigned id) {
    if (callbacks_.erase(static_cast<int>(id)) > 0) {
        killTimer(static_cast<int>(id));
    }
}

void QtTimerService::timerEvent(QTimerEvent* event) {
    const auto found = callbacks_.find(event->timerId());
    if (found == callbacks_.end()) {
        return;
    }
    const std::function<void()> callback = found->second;  // the callback may stop its own timer
    callback();
}

}  // namespace Tarvik::Client
