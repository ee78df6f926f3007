// SPDX-License-Identifier: MIT
#include "host/server/program/tests/ServerProcess.h"

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <future>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace Tarvik::Server {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::pair<int, int> MakePipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw std::runtime_error("there is no pipe");
    }
    return {ends[0], ends[1]};
}

/// Starts the program; a killed test leaves none behind.
pid_t Start(std::vector<std::string> words, std::vector<std::string> variables, int in, int out) {
    words.insert(words.begin(), SEAPLAN_SERVER_PROGRAM);
    const std::vector<char*> arguments = Pointers(words);
    const std::vector<char*> environment = Pointers(variables);
    const pid_t process = fork();
    if (process != 0) {
        return process;
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(out, STDERR_FILENO);
    execve(arguments[0], arguments.data(), environment.data());
    _exit(127);
}

int WaitFor(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The port that the line of the log's beginning names; 0 for any other line.
std::uint16_t PortIn(const std::string& line) {
    constexpr std::string_view kKey = "\"port\":\"";
    const std::size_t place = line.find(kKey);
    if (line.find("\"started\"") == std::string::npos || place == std::string::npos) {
        return 0;
    }
    return static_cast<std::uint16_t>(std::stoi(line.substr(place + kKey.size())));
}

}  // namespace

ProgramEnd RunServerProgram(const std::vector<std::string>& words, const std::vector<std::string>& variables,
                            const std::string& input) {
    const auto [childIn, toChild] = MakePipe();
    const auto [fromChild, childOut] = MakePipe();
    const pid_t process = Start(words, variables, childIn, childOut);
    close(childIn);
    close(childOut);
    // A pipe takes far more than a password at once.
    const bool written = write(toChild, input.data(), input.size()) == static_cast<ssize_t>(input.size());
    close(toChild);
    ProgramEnd end;
    char buffer[4096];
    for (ssize_t count = 0; (count = read(fromChild, buffer, sizeof(buffer))) > 0;) {
        end.output.append(buffer, static_cast<std::size_t>(count));
    }
    close(fromChild);
    end.code = WaitFor(process);
    if (!written) {
        throw std::runtime_error("the program takes no input");
    }
    return end;
}

ServerProcess::ServerProcess(const std::vector<std::string>& variables) {
    std::vector<std::string> all = variables;
    all.emplace_back("SEAPLAN_SERVER_PORT=0");
    const auto [in, out] = MakePipe();
    const int none = open("/dev/null", O_RDONLY | O_CLOEXEC);
    process_ = Start({"serve"}, all, none, out);
    close(none);
    close(out);
    std::promise<std::uint16_t> served;
    auto port = served.get_future();
    reader_ = std::thread([this, in = in, served = std::move(served)]() mutable {
        FILE* lines = fdopen(in, "r");
        char line[8192];
        bool told = false;
        while (std::fgets(line, sizeof(line), lines) != nullptr) {
            const std::scoped_lock lock(mutex_);
            log_ += line;
            const std::uint16_t found = told ? std::uint16_t{0} : PortIn(line);
            if (found == 0) {
                continue;
            }
            served.set_value(found);
            told = true;
        }
        if (!told) {
            served.set_value(0);
        }
        std::fclose(lines);
    });
    port_ = port.get();
    if (port_ != 0) {
        return;
    }
    End(SIGKILL);
    throw std::runtime_error("the server does not serve: " + Log());
}

ServerProcess::~ServerProcess() {
    End(SIGKILL);
}

int ServerProcess::End(int signal) {
    int code = -1;
    if (process_ > 0) {
        kill(process_, signal);
        code = WaitFor(process_);
        process_ = -1;
    }
    if (reader_.joinable()) {
        reader_.join();
    }
    return code;
}

std::string ServerProcess::Log() {
    const std::scoped_lock lock(mutex_);
    return log_;
}

}  // namespace Tarvik::Server
