// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <future>
#include <thread>
#include <unordered_map>

#include <tarvik/interface/SysMsgSink.h>
#include <tarvik/util/Clock.h>

#include "host/client/services/LanguageFiles.h"

class QWidget;

namespace Tarvik::Client {

class RotatingLog;

/// Sends what the window system's library has to say to the client's log while it lives, and to nobody
/// afterwards.
class QtLog {
  public:
    explicit QtLog(RotatingLog& log);
    ~QtLog();
    QtLog(const QtLog&) = delete;
    QtLog& operator=(const QtLog&) = delete;

    /// Keeps the library silent until there is a log.
    static void Silence();
};

/// While it lives, a display that cannot be used or does not answer ends the program with one line and the
/// exit code of a failure: the library's own end would be an abort, or none. For the making of the
/// application object.
class DisplayStart {
  public:
    DisplayStart();
    ~DisplayStart();
    DisplayStart(const DisplayStart&) = delete;
    DisplayStart& operator=(const DisplayStart&) = delete;

  private:
    std::promise<void> started_;
    std::thread watch_;
};

/// Shows messages in a box over the window that they belong to, and waits for the answer.
class QtMessageSink : public Interface::SysMsgSink {
  public:
    /// `mainWindow` takes messages without an owner; neither is owned.
    QtMessageSink(QWidget* mainWindow, const LanguageFiles& texts) : mainWindow_(mainWindow), texts_(texts) {}
    Interface::SysMsgHandleRes SyncSendMsg(int level, const std::u16string& text, int flags, void* owner,
                                           const std::u16string& title) override;

  private:
    QWidget* mainWindow_;
    const LanguageFiles& texts_;
};

/// The SDK's timers on the window system's event loop.
class QtTimerService : public QObject, public Util::TimerService {
  public:
    unsigned Start(int periodMs, std::function<void()> callback) override;
    void Stop(unsigned id) override;

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    std::unordered_map<int, std::function<void()>> callbacks_;
};

}  // namespace Tarvik::Client
