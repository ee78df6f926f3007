// SPDX-License-Identifier: MIT
#include "host/server/transfer/tests/TransferFixture.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "host/server/transfer/TransferFile.h"
#include "host/server/transfer/TransferWriter.h"

namespace Tarvik::Server {

namespace {

constexpr std::int64_t kMade = 1772323200;

}  // namespace

Outcome<bool> MemoryAccounts::AddUser(const std::string& name, const std::string& passwordHash) {
    if (!fault.empty()) {
        return Fault{FaultReason::StorageFailed, fault};
    }
    return users.try_emplace(name, UserRecord{name, passwordHash, false}).second;
}

Outcome<std::optional<UserRecord>> MemoryAccounts::FindUser(const std::string& name) {
    if (!fault.empty()) {
        return Fault{FaultReason::StorageFailed, fault};
    }
    const auto user = users.find(name);
    return user == users.end() ? std::optional<UserRecord>() : std::optional(user->second);
}

Outcome<std::vector<UserRecord>> MemoryAccounts::ListUsers() {
    if (!fault.empty()) {
        return Fault{FaultReason::StorageFailed, fault};
    }
    std::vector<UserRecord> all;
    for (const auto& [name, user] : users) {
        all.push_back(user);
    }
    return all;
}

Outcome<bool> MemoryAccounts::SetPassword(const std::string& name, const std::string& passwordHash) {
    return users.contains(name) && RenewHash(name, users[name].passwordHash, passwordHash).Value();
}

Outcome<bool> MemoryAccounts::RenewHash(const std::string& name, const std::string& before,
                                        const std::string& after) {
    const auto user = users.find(name);
    if (user == users.end() || user->second.passwordHash != before) {
        return false;
    }
    user->second.passwordHash = after;
    return true;
}

Outcome<bool> MemoryAccounts::SetDisabled(const std::string& name, bool disabled) {
    const auto user = users.find(name);
    if (user == users.end()) {
        return false;
    }
    user->second.disabled = disabled;
    return true;
}

Outcome<bool> MemoryAccounts::AddSession(const SessionRecord& /*session*/,
                                         const std::string& /*passwordHash*/, std::int64_t /*now*/) {
    return false;
}

Outcome<std::optional<std::string>> MemoryAccounts::FindSession(const std::string& /*tokenHash*/,
                                                                std::int64_t /*now*/) {
    return std::optional<std::string>();
}

Status MemoryAccounts::RemoveSession(const std::string& /*tokenHash*/) {
    return Done{};
}

Place::Place() {
    std::string error;
    storage = SqliteStorage::Open(":memory:", error);
    if (storage == nullptr) {
        throw std::runtime_error(error);
    }
}

std::string Place::Everything(const std::string& user) {
    std::string text;
    TransferWriter writer([&](std::string_view bytes) { text += bytes; }, kMade);
    writer.User({std::nullopt, storage->Transfer().ReadOwner(user).Value()});
    return text;
}

bool TransferTest::Export(Place& place, const ExportChoice& choice, const std::string& name) {
    TransferContent content;
    error.clear();
    const bool made = Exporter(place.storage->Transfer(), &place.accounts, [] {
                          return kMade;
                      }).Run(choice, Path(name), content, error);
    EXPECT_EQ(made, error.empty()) << error;
    return made;
}

bool TransferTest::Import(Place& place, const ImportChoice& choice, const std::string& name) {
    done.clear();
    error.clear();
    const auto reader = TransferReader::Open(Path(name), error, choice.skipBad);
    if (reader == nullptr) {
        return false;
    }
    const auto rule = [](const std::string& user) { return user.find(' ') == std::string::npos; };
    const bool read =
        Importer(place.storage->Transfer(), &place.accounts, rule).Run(choice, *reader, done, error);
    EXPECT_EQ(read, error.empty()) << error;
    EXPECT_EQ(read, !done.empty()) << done;
    return read;
}

std::string TransferTest::Bytes(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string TransferTest::Ended(const std::string& lines) {
    Checksum sum;
    sum.Add(lines);
    return lines + R"({"end":)" + std::to_string(std::count(lines.begin(), lines.end(), '\n')) +
           R"(,"sha256":")" + sum.Finish() + "\"}\n";
}

void TransferTest::WriteBytes(const std::string& bytes, const std::string& name) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
}

}  // namespace Tarvik::Server
