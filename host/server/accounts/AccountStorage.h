// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"

namespace Tarvik::Server {

/// A person who may log in.
struct UserRecord {
    std::string name;
    std::string passwordHash;  ///< as the password library writes it, with its cost
    bool disabled = false;
};

/// A login that lasts. Only the hash of its token is kept.
struct SessionRecord {
    std::string tokenHash;
    std::string user;
    std::int64_t expires = 0;  ///< seconds since 1970-01-01 00:00:00 UTC; over from this second on
};

/// Users and sessions, shared by all processes of a server.
///
/// An operation is one transaction: it is on disk when it succeeds and has changed nothing when it does not.
/// Operations may be called from any thread and never throw; a fault is always StorageFailed, with a detail.
class AccountStorage {
  public:
    virtual ~AccountStorage() = default;

    /// As Storage::GiveUp.
    virtual void GiveUp() {}

    /// Adds a user who may log in. False when there is one of this name.
    virtual Outcome<bool> AddUser(const std::string& name, const std::string& passwordHash) = 0;
    virtual Outcome<std::optional<UserRecord>> FindUser(const std::string& name) = 0;
    /// All users in the order of their names' bytes.
    virtual Outcome<std::vector<UserRecord>> ListUsers() = 0;
    /// Sets another password and ends the user's sessions. False when there is no such user.
    virtual Outcome<bool> SetPassword(const std::string& name, const std::string& passwordHash) = 0;
    /// Writes the same password's hash anew if it is still `before`; sessions go on. False when it is not.
    virtual Outcome<bool> RenewHash(const std::string& name, const std::string& before,
                                    const std::string& after) = 0;
    /// Lets the user log in or not; a user who may not loses all sessions. False when there is no such user.
    virtual Outcome<bool> SetDisabled(const std::string& name, bool disabled) = 0;

    /// Adds a session if the user may log in and still has the password `passwordHash`; removes every session
    /// that is over at `now`. False when the user may not.
    virtual Outcome<bool> AddSession(const SessionRecord& session, const std::string& passwordHash,
                                     std::int64_t now) = 0;
    /// The user whose session it is, if it is not over at `now`.
    virtual Outcome<std::optional<std::string>> FindSession(const std::string& tokenHash,
                                                            std::int64_t now) = 0;
    /// Ends a session; one that is not there is no fault.
    virtual Status RemoveSession(const std::string& tokenHash) = 0;
};

}  // namespace Tarvik::Server
