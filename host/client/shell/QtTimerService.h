// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <unordered_map>

#include <tarvik/util/Clock.h>

namespace Tarvik::Client {

/// The SDK's timers on the window system's event loop.
class QtTimerService : public QObject, public Util::TimerService {
    Q_OBJECT
  public:
    unsigned Start(int periodMs, std::function<void()> callback) override;
    void Stop(unsigned id) override;

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    std::unordered_map<int, std::function<void()>> callbacks_;
};

}  // namespace Tarvik::Client
