// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <mutex>
#include <set>
#include <string>

namespace Tarvik::Client {

/// The client's log: one file that is renamed to "<file>.1" when it has grown to its limit. Lines carry UTC.
class RotatingLog {
  public:
    /// Lines of at most `limitBytes` in all stay in `file`; `verbose` repeats them on standard error.
    RotatingLog(std::string file, std::size_t limitBytes, bool verbose);
    /// Writes one line. A log that cannot be written is silent: nothing depends on it.
    void Write(const std::string& line);

  private:
    std::string file_;
    std::size_t limit_;
    bool verbose_;
    std::mutex mutex_;
};

/// Tells the log what goes wrong on the bus while it lives, each thing once: a service that is missing is
/// asked for at every key stroke.
class BusLog {
  public:
    /// `log` outlives this.
    explicit BusLog(RotatingLog& log);
    ~BusLog();
    BusLog(const BusLog&) = delete;
    BusLog& operator=(const BusLog&) = delete;

  private:
    RotatingLog& log_;
    std::set<std::string> told_;
};

}  // namespace Tarvik::Client
