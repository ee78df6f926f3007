// SPDX-License-Identifier: MIT
#include "host/server/transfer/Importer.h"

#include <algorithm>
#include <utility>

namespace Tarvik::Server {

namespace {

/// No password has this hash.
constexpr const char* kNoPassword = "!";

std::string Occupied(const std::string& user) {
    return user + " has voyages here already; --add puts those of the file beside them";
}

}  // namespace

bool Importer::Run(const ImportChoice& choice, TransferSource& source, std::string& done,
                   std::string& error) {
    TransferContent content;
    if (!source.ReadContent(content, error)) {
        return false;
    }
    std::vector<TransferContent::User> missing;
    if (!Rename(choice, content, error) || !CheckFree(choice, content, error) ||
        !CheckAccounts(content, missing, error)) {
        return false;
    }
    // Accounts first: should what follows fail, the same command goes on where this one ended.
    for (const TransferContent::User& user : missing) {
        if (!AddAccount(user, error)) {
            return false;
        }
    }
    bool idsKept = false;
    if (!AddRecords(choice, content, source, idsKept, error)) {
        return false;
    }
    done = "imported " + Summary(content);
    if (!idsKept && content.highestId > 0) {
        done += "; ids of the file are taken here, so all records got new ones";
    }
    for (const std::string& record : source.LeftOut()) {
        done += "\nleft out: " + record;
    }
    return true;
}

bool Importer::Rename(const ImportChoice& choice, TransferContent& content, std::string& error) const {
    if (choice.user.empty()) {
        return true;
    }
    if (content.users.size() != 1) {
        error =
            "the file holds " + std::to_string(content.users.size()) + " users; --user is for a file of one";
        return false;
    }
    content.users[0] = {choice.user, std::nullopt};
    return true;
}

bool Importer::CheckFree(const ImportChoice& choice, const TransferContent& content, std::string& error) {
    if (choice.add) {
        return true;
    }
    const auto owners = records_.ListOwners();
    if (!owners) {
        error = owners.GetFault().detail;
        return false;
    }
    for (const TransferContent::User& user : content.users) {
        if (std::binary_search(owners.Value().begin(), owners.Value().end(), user.name)) {
            error = Occupied(user.name);
            return false;
        }
    }
    return true;
}

bool Importer::CheckAccounts(const TransferContent& content, std::vector<TransferContent::User>& missing,
                             std::string& error) {
    if (accounts_ == nullptr) {
        return true;
    }
    for (const TransferContent::User& user : content.users) {
        const auto known = accounts_->FindUser(user.name);
        if (!known) {
            error = known.GetFault().detail;
            return false;
        }
        if (known.Value()) {
            continue;
        }
        if (!user.account || user.account->passwordHash.empty() || !isUserName_(user.name)) {
            error = "there is no user " + user.name +
                    " here: seaplan-server user add NAME adds one, --user NAME " +
                    "gives the voyages to another";
            return false;
        }
        missing.push_back(user);
    }
    return true;
}

/// A disabled user must not be able to log in at any moment, so the password comes last.
bool Importer::AddAccount(const TransferContent::User& user, std::string& error) {
    const AccountCopy& account = *user.account;
    auto added = accounts_->AddUser(user.name, account.disabled ? kNoPassword : account.passwordHash);
    if (account.disabled && added) {
        added = accounts_->SetDisabled(user.name, true);
    }
    if (account.disabled && added) {
        added = accounts_->RenewHash(user.name, kNoPassword, account.passwordHash);
    }
    if (added && added.Value()) {
        return true;
    }
    error = "the user " + user.name + " cannot be added";
    if (!added) {
        error += ": " + added.GetFault().detail;
    }
    return false;
}

bool Importer::AddRecords(const ImportChoice& choice, const TransferContent& content, TransferSource& source,
                          bool& idsKept, std::string& error) {
    CopyManifest manifest;
    for (const TransferContent::User& user : content.users) {
        manifest.owners.push_back(user.name);
    }
    manifest.lowestId = content.lowestId;
    manifest.highestId = content.highestId;
    manifest.besideOthers = choice.add;
    source.Rewind();
    const auto next = [&]() -> Outcome<std::optional<OwnerCopy>> {
        std::optional<UserCopy> user;
        std::string reason;
        if (!source.Next(user, reason)) {
            return Fault{FaultReason::StorageFailed, reason};
        }
        if (!user) {
            return std::optional<OwnerCopy>();
        }
        if (!choice.user.empty()) {
            user->records.owner = choice.user;
        }
        return std::optional<OwnerCopy>(std::move(user->records));
    };
    const auto report = records_.AddOwners(manifest, next);
    if (!report) {
        error = report.GetFault().detail;
    } else if (!report.Value().occupied.empty()) {
        error = Occupied(report.Value().occupied);
    } else {
        idsKept = report.Value().idsKept;
        return true;
    }
    return false;
}

}  // namespace Tarvik::Server
