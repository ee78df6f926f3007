// SPDX-License-Identifier: MIT
#include "bench/server/ChildProcess.h"

#include <array>
#include <csignal>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Bench {

namespace {

[[noreturn]] void Serve(const std::function<void(const ChildProcess::Ready&)>& serve, int pipe) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    try {
        serve([pipe](std::uint16_t port) {
            if (::write(pipe, &port, sizeof port) != sizeof port) {
                ::_exit(1);
            }
            ::close(pipe);
        });
        ::_exit(0);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
        ::_exit(1);
    }
}

}  // namespace

ChildProcess::ChildProcess(const std::function<void(const Ready&)>& serve) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    child_ = ::fork();
    if (child_ < 0) {
        throw std::runtime_error("no process");
    }
    if (child_ == 0) {
        Serve(serve, pipe[1]);
    }
    ::close(pipe[1]);
    const bool ready = ::read(pipe[0], &port_, sizeof port_) == sizeof port_;
    ::close(pipe[0]);
    if (!ready) {
        throw std::runtime_error("the server does not start");
    }
}

ChildProcess::~ChildProcess() {
    ::kill(child_, SIGTERM);
    ::waitpid(child_, nullptr, 0);
}

std::size_t ChildProcess::ResidentBytes() const {
    std::ifstream in("/proc/" + std::to_string(child_) + "/statm");
    std::size_t total = 0;
    std::size_t resident = 0;
    in >> total >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

double ChildProcess::ProcessorSeconds() const {
    std::ifstream in("/proc/" + std::to_string(child_) + "/stat");
    std::string word;
    double ticks = 0;
    // Fields 14 and 15: user and system time.
    for (int field = 1; field <= 15 && in >> word; ++field) {
        if (field >= 14) {
            ticks += std::stod(word);
        }
    }
    return ticks / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

}  // namespace Bench
