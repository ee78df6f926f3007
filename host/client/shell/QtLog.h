// SPDX-License-Identifier: MIT
#pragma once

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

}  // namespace Tarvik::Client
