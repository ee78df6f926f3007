// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/accounts/Credentials.h"

namespace Tarvik::Server {

/// The commands on users: add, password, disable, enable, list.
class UserAdmin {
  public:
    /// Gives one password; false when there is none to read.
    using PasswordSource = std::function<bool(std::string&)>;

    /// `accounts` and the streams are not owned and outlive this.
    UserAdmin(AccountStorage& accounts, const Passwords& passwords, PasswordSource source, std::ostream& out,
              std::ostream& err);

    /// Whether the words, those behind `user`, are a command of the right form.
    static bool IsCommand(const std::vector<std::string>& words);
    /// Runs a command of the right form. 0 on success, 1 with one line on the error stream when it failed.
    int Run(const std::vector<std::string>& words);

  private:
    int Add(const std::string& name);
    int SetPassword(const std::string& name);
    int SetDisabled(const std::string& name, bool disabled);
    int List();
    /// The hash of a password that was read; empty, with a line on the error stream, when there is none.
    std::string ReadHash();
    int Fail(const std::string& line);
    /// Says how a change ended: done, nobody to change (`otherwise`), or a fault.
    int Conclude(const Outcome<bool>& outcome, const std::string& done, const std::string& otherwise);

    AccountStorage& accounts_;
    const Passwords& passwords_;
    PasswordSource source_;
    std::ostream& out_;
    std::ostream& err_;
};

}  // namespace Tarvik::Server
