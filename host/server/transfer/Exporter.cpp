// SPDX-License-Identifier: MIT
#include "host/server/transfer/Exporter.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "host/server/transfer/AtomicFile.h"

namespace Tarvik::Server {

namespace {

UserCopy Named(const std::string& name) {
    UserCopy user;
    user.records.owner = name;
    return user;
}

auto Find(std::vector<UserCopy>& users, const std::string& name) {
    return std::find_if(users.begin(), users.end(),
                        [&](const UserCopy& user) { return user.records.owner == name; });
}

}  // namespace

bool Exporter::Run(const ExportChoice& choice, const std::string& path, TransferContent& content,
                   std::string& error) {
    std::vector<UserCopy> users;
    if (!ChooseUsers(choice, users, error)) {
        return false;
    }
    AtomicFile file(path);
    if (!file.Open(error)) {
        return false;
    }
    try {
        TransferWriter writer([&](std::string_view bytes) { file.Write(bytes); }, clock_());
        if (!WriteUsers(users, writer, content, error)) {
            return false;
        }
        writer.End();
    } catch (const std::exception& failure) {
        error = std::string("a record cannot be written: ") + failure.what();
        return false;
    }
    return file.Commit(error);
}

bool Exporter::ChooseUsers(const ExportChoice& choice, std::vector<UserCopy>& users, std::string& error) {
    const auto owners = records_.ListOwners();
    if (!owners) {
        error = owners.GetFault().detail;
        return false;
    }
    for (const std::string& owner : owners.Value()) {
        users.push_back(Named(owner));
    }
    if (choice.all || !choice.user.empty()) {
        if (!AddAccounts(users, error)) {
            return false;
        }
    }
    if (choice.all) {
        return true;
    }
    if (choice.user.empty()) {
        if (users.size() == 1) {
            return true;
        }
        error = users.empty() ? "there is nothing to export"
                              : "there are several users: take one by --user NAME, or --all";
        return false;
    }
    const auto found = Find(users, choice.user);
    if (found == users.end()) {
        error = "there is no user " + choice.user;
        return false;
    }
    users = {Named(choice.user)};
    return true;
}

/// Users who have an account but nothing else are users too.
bool Exporter::AddAccounts(std::vector<UserCopy>& users, std::string& error) {
    if (accounts_ == nullptr) {
        return true;
    }
    const auto accounts = accounts_->ListUsers();
    if (!accounts) {
        error = accounts.GetFault().detail;
        return false;
    }
    for (const UserRecord& record : accounts.Value()) {
        auto user = Find(users, record.name);
        if (user == users.end()) {
            user = users.insert(users.end(), Named(record.name));
        }
        user->account = AccountCopy{record.passwordHash, record.disabled};
    }
    std::sort(users.begin(), users.end(),
              [](const UserCopy& a, const UserCopy& b) { return a.records.owner < b.records.owner; });
    return true;
}

bool Exporter::WriteUsers(const std::vector<UserCopy>& users, TransferWriter& writer,
                          TransferContent& content, std::string& error) {
    content = TransferContent();
    for (const UserCopy& chosen : users) {
        auto records = records_.ReadOwner(chosen.records.owner);
        if (!records) {
            error = records.GetFault().detail;
            return false;
        }
        const UserCopy user{chosen.account, std::move(records.Value())};
        writer.User(user);
        content.users.push_back({user.records.owner, user.account});
        Count(user.records, content);
    }
    return true;
}

}  // namespace Tarvik::Server
