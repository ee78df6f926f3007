// SPDX-License-Identifier: MIT
#include "tests/gui/Display.h"

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace Tarvik::Programs {

namespace {

constexpr int kStartMs = 60000;

}  // namespace

Display::Display(const std::string& manager) {
    StartServer();
    if (!manager.empty() && !name_.empty()) {
        StartManager(manager);
    }
}

void Display::StartManager(const std::string& manager) {
    ChildProcess::Start start;
    start.words = {manager};
    start.environment["DISPLAY"] = name_;
    manager_ = std::make_unique<ChildProcess>(start);
    start.words = {XDOTOOL_PROGRAM, "get_num_desktops"};
    EXPECT_TRUE(Eventually([&] { return std::atoi(RunToEnd(start).out.c_str()) > 0; }))
        << "the window manager did not start";
}

void Display::StartServer() {
    int numbers[2];
    if (pipe2(numbers, O_CLOEXEC) != 0) {
        return;
    }
    ChildProcess::Start start;
    start.words = {XVFB_PROGRAM, "-displayfd", std::to_string(numbers[1]),
                   "-screen",    "0",          "1600x1000x24",
                   "-nolisten",  "tcp",        "-noreset"};
    start.passedDescriptor = numbers[1];
    server_ = std::make_unique<ChildProcess>(start);
    close(numbers[1]);
    // The server writes its number once it takes connections, and the end of the line in a write of its own.
    pollfd waiting{numbers[0], POLLIN, 0};
    std::string number;
    char next = 0;
    while (next != '\n' && poll(&waiting, 1, kStartMs) == 1 && read(numbers[0], &next, 1) == 1) {
        number += next;
    }
    close(numbers[0]);
    if (next == '\n') {
        name_ = ":" + std::to_string(std::atoi(number.c_str()));
    }
    EXPECT_NE(name_, "") << "the X server did not start";
}

std::vector<std::string> Managers() {
    const std::string manager = WINDOW_MANAGER;
    return manager.empty() ? std::vector<std::string>{""} : std::vector<std::string>{"", manager};
}

}  // namespace Tarvik::Programs
