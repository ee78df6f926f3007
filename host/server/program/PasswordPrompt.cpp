// SPDX-License-Identifier: MIT
#include <iostream>
#include <termios.h>
#include <unistd.h>

#include "host/server/program/Program.h"

namespace Tarvik::Server {

namespace {

/// The terminal of standard input without its echo, as long as this lives.
class EchoOff {
  public:
    EchoOff() : known_(tcgetattr(STDIN_FILENO, &before_) == 0) {
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        if (known_) {
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
        }
    }
    ~EchoOff() {
        if (known_) {
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
        }
    }
    EchoOff(const EchoOff&) = delete;
    EchoOff& operator=(const EchoOff&) = delete;

  private:
    termios before_{};
    bool known_;
};

bool Ask(const char* question, std::string& password) {
    std::cerr << question << std::flush;
    const bool read = ReadPasswordLine(std::cin, password);
    std::cerr << "\n";
    return read;
}

}  // namespace

bool ReadPasswordLine(std::istream& in, std::string& password) {
    password.clear();
    if (!std::getline(in, password)) {
        return false;
    }
    if (password.ends_with('\r')) {
        password.pop_back();
    }
    return true;
}

bool AskPassword(std::string& password) {
    if (isatty(STDIN_FILENO) == 0) {
        return ReadPasswordLine(std::cin, password);
    }
    const EchoOff silent;
    std::string again;
    if (!Ask("Password: ", password) || !Ask("The same again: ", again)) {
        return false;
    }
    if (password == again) {
        return true;
    }
    std::cerr << "seaplan-server: the two differ\n";
    return false;
}

}  // namespace Tarvik::Server
