// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <vector>

#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// Changes of one file, which wait for its one writing connection. A sync of the disk takes longer than most
/// changes, so those that wait at the same time share a transaction and its sync, each behind a savepoint of
/// its own. Whoever comes first leads: it runs the changes of all that have come when the file is its own,
/// and lets the first of those lead who came later. Safe to call from any thread.
class SqliteChanges {
  public:
    using Work = std::function<bool(SqlConnection&)>;

    /// `writer` is not owned, and used by nobody else meanwhile.
    SqliteChanges(SqliteDatabase& writer, std::chrono::milliseconds patience)
        : writer_(writer), patience_(patience) {}

    /// Runs the work as SqlSession::Transact says; returns when what it did is on disk, or throws what went
    /// wrong. Waits its patience for who writes here and elsewhere, both together.
    void Run(SqlMode mode, const Work& work);
    /// Ends all waiting, now and from now on.
    void GiveUp();

  private:
    struct Change;
    using Group = std::vector<Change*>;

    /// Waits until the change is over or has to lead; throws when it has waited for too long.
    void Wait(Change& change, std::unique_lock<std::mutex>& lock);
    void Lead(Change& change, std::unique_lock<std::mutex>& lock);
    void TakeOthers(Group& group);
    void RunGroup(const Group& group, SqliteTransaction& transaction);
    bool RunTogether(const Group& group, SqliteTransaction& transaction);
    void RunWithin(Change& change, SqliteTransaction& transaction);
    void RunAlone(Change& change);
    void PassOn();

    SqliteDatabase& writer_;
    std::chrono::milliseconds patience_;
    std::atomic<bool> givenUp_{false};
    std::mutex mutex_;
    bool led_ = false;             ///< whether somebody leads
    std::deque<Change*> waiting_;  ///< in the order of their coming, without the one that leads
};

}  // namespace Tarvik::Server
