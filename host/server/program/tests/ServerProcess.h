// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <sys/types.h>
#include <thread>
#include <vector>

namespace Tarvik::Server {

/// What a program that has ended has left.
struct ProgramEnd {
    int code = -1;       ///< -1 when a signal ended it
    std::string output;  ///< of both streams
};

/// Runs the server's program to its end, with `input` as standard input. The environment holds `variables`
/// ("NAME=value") only.
ProgramEnd RunServerProgram(const std::vector<std::string>& words, const std::vector<std::string>& variables,
                            const std::string& input = {});

/// The server's program, serving as a process of its own on a free port of this machine.
class ServerProcess {
  public:
    /// Starts it and returns when it serves; throws std::runtime_error with its log when it does not.
    explicit ServerProcess(const std::vector<std::string>& variables);
    /// Kills it if it still runs.
    ~ServerProcess();
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    std::uint16_t Port() const { return port_; }
    /// Sends the signal and waits for the end. Gives the exit code, or -1 when the signal ended it.
    int End(int signal);
    /// Everything that it has written until now.
    std::string Log();

  private:
    pid_t process_ = -1;
    std::uint16_t port_ = 0;
    std::mutex mutex_;
    std::string log_;
    std::thread reader_;
};

}  // namespace Tarvik::Server
