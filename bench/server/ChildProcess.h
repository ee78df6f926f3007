// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <sys/types.h>

namespace Bench {

/// A server in a process of its own, until this goes.
class ChildProcess {
  public:
    /// Tells the parent that the server listens at a port.
    using Ready = std::function<void(std::uint16_t port)>;

    /// `serve` runs in the child until SIGTERM. Make it before any thread; throws when the child ends early.
    explicit ChildProcess(const std::function<void(const Ready&)>& serve);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    std::uint16_t Port() const { return port_; }
    /// Memory that is there for it now, in bytes.
    std::size_t ResidentBytes() const;
    /// Processor time that it took so far, in seconds.
    double ProcessorSeconds() const;

  private:
    pid_t child_ = -1;
    std::uint16_t port_ = 0;
};

}  // namespace Bench
