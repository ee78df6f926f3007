// SPDX-License-Identifier: MIT
#include "host/server/accounts/UserAdmin.h"

#include <utility>

#include "host/server/accounts/Credentials.h"

namespace Tarvik::Server {

UserAdmin::UserAdmin(AccountStorage& accounts, const Passwords& passwords, PasswordSource source,
                     std::ostream& out, std::ostream& err)
    : accounts_(accounts), passwords_(passwords), source_(std::move(source)), out_(out), err_(err) {}

bool UserAdmin::IsCommand(const std::vector<std::string>& words) {
    if (words.size() == 1) {
        return words[0] == "list";
    }
    const bool known = !words.empty() && (words[0] == "add" || words[0] == "password" ||
                                          words[0] == "disable" || words[0] == "enable");
    return known && words.size() == 2;
}

int UserAdmin::Run(const std::vector<std::string>& words) {
    if (words[0] == "list") {
        return List();
    }
    const std::string& name = words[1];
    if (words[0] == "add") {
        return Add(name);
    }
    if (words[0] == "password") {
        return SetPassword(name);
    }
    return SetDisabled(name, words[0] == "disable");
}

int UserAdmin::Add(const std::string& name) {
    if (!IsUserName(name)) {
        return Fail("a user name is 1 to 64 letters, digits, \".\", \"_\", \"@\" or \"-\"");
    }
    // Asked before the password, so that nobody types one for nothing.
    const auto known = accounts_.FindUser(name);
    if (!known) {
        return Fail(known.GetFault().detail);
    }
    if (known.Value()) {
        return Fail("there is a user " + name + " already");
    }
    const std::string hash = ReadHash();
    if (hash.empty()) {
        return 1;
    }
    return Conclude(accounts_.AddUser(name, hash), "added " + name, "there is a user " + name + " already");
}

int UserAdmin::SetPassword(const std::string& name) {
    const auto known = accounts_.FindUser(name);
    if (!known) {
        return Fail(known.GetFault().detail);
    }
    if (!known.Value()) {
        return Fail("there is no user " + name);
    }
    const std::string hash = ReadHash();
    if (hash.empty()) {
        return 1;
    }
    return Conclude(accounts_.SetPassword(name, hash), "changed the password of " + name,
                    "there is no user " + name);
}

int UserAdmin::SetDisabled(const std::string& name, bool disabled) {
    return Conclude(accounts_.SetDisabled(name, disabled), (disabled ? "disabled " : "enabled ") + name,
                    "there is no user " + name);
}

int UserAdmin::List() {
    const auto users = accounts_.ListUsers();
    if (!users) {
        return Fail(users.GetFault().detail);
    }
    for (const UserRecord& user : users.Value()) {
        out_ << user.name << (user.disabled ? " disabled" : " enabled") << "\n";
    }
    return 0;
}

std::string UserAdmin::ReadHash() {
    std::string password;
    if (!source_(password)) {
        Fail("the password is read from standard input, and there is none");
        return {};
    }
    if (password.size() < kLeastPasswordBytes || password.size() > kMostPasswordBytes) {
        Fail("a password has " + std::to_string(kLeastPasswordBytes) + " to " +
             std::to_string(kMostPasswordBytes) + " bytes");
        return {};
    }
    std::string hash = passwords_.Hash(password);
    if (hash.empty()) {
        Fail("there is too little memory to hash the password");
    }
    return hash;
}

int UserAdmin::Fail(const std::string& line) {
    err_ << "seaplan-server: " << line << "\n";
    return 1;
}

int UserAdmin::Conclude(const Outcome<bool>& outcome, const std::string& done, const std::string& otherwise) {
    if (!outcome) {
        return Fail(outcome.GetFault().detail);
    }
    if (!outcome.Value()) {
        return Fail(otherwise);
    }
    out_ << done << "\n";
    return 0;
}

}  // namespace Tarvik::Server
