// SPDX-License-Identifier: MIT
#pragma once

#include "host/client/shell/MainWindow.h"
#include "host/client/shell/QtServices.h"

namespace Tarvik::Client {

/// The window of a session with what the SDK needs of a window system: timers, messages, the main window's
/// handle. Loads the plug-ins; the application object must exist.
class Desk {
  public:
    explicit Desk(ClientSession& session);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Style and attributes that must be set before the application object is made.
    static void PrepareApplication();
    MainWindow& Window() { return window_; }
    /// Shows which plug-ins were left out, and why, if any were.
    void TellComplaints();

  private:
    ClientSession& session_;
    MainWindow window_;
    QtTimerService timers_;
    QtMessageSink messages_;
};

}  // namespace Tarvik::Client
