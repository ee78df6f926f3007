// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Tarvik::Programs {

/// What a program left when it ended.
struct Ended {
    int exitCode = -1;  ///< -1 when a signal ended it
    int signal = 0;
    std::string out;
    std::string err;
};

/// A program started by a test; killed with the test if it still runs then.
class ChildProcess {
  public:
    struct Start {
        std::vector<std::string> words;                  ///< program and its words
        std::map<std::string, std::string> environment;  ///< added to the test's own
        long fileBytes = -1;                             ///< largest file it may write, -1 for any
        int passedDescriptor = -1;                       ///< kept open in the program, -1 for none
    };
    explicit ChildProcess(const Start& start);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t Id() const { return id_; }
    void Signal(int number) const;
    /// Waits for the end; past the limit the program is killed and the test fails.
    Ended Wait(std::chrono::seconds limit = std::chrono::seconds(120));

  private:
    pid_t id_ = -1;
    int out_ = -1;
    int err_ = -1;
    Ended ended_;
};

/// Runs a program to its end.
Ended RunToEnd(const ChildProcess::Start& start);

/// Asks `condition` again and again until it holds; false when it did not within the limit.
bool Eventually(const std::function<bool()>& condition,
                std::chrono::seconds limit = std::chrono::seconds(60));

/// Eventually, but throws with `otherwise` when the condition does not come to hold.
void AwaitOrThrow(const std::function<bool()>& condition, const std::string& otherwise);

}  // namespace Tarvik::Programs
