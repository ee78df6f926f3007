// SPDX-License-Identifier: MIT
#include "tests/gui/ChildProcess.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace Tarvik::Programs {

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void Become(const ChildProcess::Start& start, int out, int err) {
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    if (start.passedDescriptor >= 0) {
        fcntl(start.passedDescriptor, F_SETFD, 0);
    }
    for (const auto& [name, value] : start.environment) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    if (start.fileBytes >= 0) {
        const rlimit limit{static_cast<rlim_t>(start.fileBytes), static_cast<rlim_t>(start.fileBytes)};
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);  // a write past the limit then fails as on a full disk
    }
    std::vector<char*> words;
    for (const std::string& word : start.words) {
        words.push_back(const_cast<char*>(word.c_str()));
    }
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
}

/// Appends what there is to read; false at the end of the stream.
bool Drain(int descriptor, std::string& text) {
    char chunk[4096];
    const ssize_t got = read(descriptor, chunk, sizeof chunk);
    if (got > 0) {
        text.append(chunk, static_cast<std::size_t>(got));
    }
    return got > 0;
}

}  // namespace

ChildProcess::ChildProcess(const Start& start) {
    int out[2];
    int err[2];
    if (pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipes";
        return;
    }
    id_ = fork();
    if (id_ == 0) {
        Become(start, out[1], err[1]);
    }
    close(out[1]);
    close(err[1]);
    out_ = out[0];
    err_ = err[0];
}

ChildProcess::~ChildProcess() {
    if (id_ > 0) {
        Signal(SIGKILL);
        waitpid(id_, nullptr, 0);
    }
    close(out_);
    close(err_);
}

void ChildProcess::Signal(int number) const {
    if (id_ > 0) {
        kill(id_, number);
    }
}

Ended ChildProcess::Wait(std::chrono::seconds limit) {
    const auto end = Clock::now() + limit;
    pollfd streams[] = {{out_, POLLIN, 0}, {err_, POLLIN, 0}};
    std::string* texts[] = {&ended_.out, &ended_.err};
    while (streams[0].fd >= 0 || streams[1].fd >= 0) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        if (left.count() <= 0 || poll(streams, 2, static_cast<int>(left.count())) == 0) {
            ADD_FAILURE() << "the program did not end in time; it said: " << ended_.out << ended_.err;
            Signal(SIGKILL);
            break;
        }
        for (int i = 0; i < 2; ++i) {
            const bool ready = streams[i].fd >= 0 && streams[i].revents != 0;
            if (ready && !Drain(streams[i].fd, *texts[i])) {
                streams[i].fd = -1;
            }
        }
    }
    int status = 0;
    waitpid(id_, &status, 0);
    id_ = -1;
    if (WIFEXITED(status)) {
        ended_.exitCode = WEXITSTATUS(status);
    }
    if (WIFSIGNALED(status)) {
        ended_.signal = WTERMSIG(status);
    }
    return ended_;
}

Ended RunToEnd(const ChildProcess::Start& start) {
    return ChildProcess(start).Wait();
}

bool Eventually(const std::function<bool()>& condition, std::chrono::seconds limit) {
    const auto end = Clock::now() + limit;
    while (!condition()) {
        if (Clock::now() > end) {
            return false;
        }
        poll(nullptr, 0, 10);
    }
    return true;
}

void AwaitOrThrow(const std::function<bool()>& condition, const std::string& otherwise) {
    if (!Eventually(condition)) {
        throw std::runtime_error(otherwise);
    }
}

}  // namespace Tarvik::Programs
