// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <mutex>
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

}  // namespace Tarvik::Client
