// SPDX-License-Identifier: MIT
#include "tests/gui/Display.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

namespace Tarvik::Programs {
namespace {

constexpr int kStartMs = 60000;

}  // namespace

Display::Display() {
    int numbers[2];
    if (pipe2(numbers, O_CLOEXEC) != 0) return;
    ChildProcess::Start start;
    start.words = {XVFB_PROGRAM, "-displayfd", std::to_string(numbers[1]), "-screen", "0", "1600x1000x24",
                   "-nolisten",  "tcp",        "-noreset"};
    start.passedDescriptor = numbers[1];
    server_ = std::make_unique<ChildProcess>(start);
    close(numbers[1]);
    pollfd waiting{numbers[0], POLLIN, 0};
    char number[16] = {};
    // The server writes its number once it takes connections.
    if (poll(&waiting, 1, kStartMs) == 1 && read(numbers[0], number, sizeof number - 1) > 0)
        name_ = ":" + std::to_string(std::atoi(number));
    close(numbers[0]);
    EXPECT_NE(name_, "") << "the X server did not start";
}

}  // namespace Tarvik::Programs
