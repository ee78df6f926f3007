// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteChanges.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <optional>

namespace Tarvik::Server {

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void ThrowWaitedTooLong(bool givenUp) {
    throw SqlError(givenUp ? "the server ends" : "the data base is locked by others");
}

}  // namespace

/// One change, on the stack of who waits for it.
struct SqliteChanges::Change {
    enum class State { Waiting, Taken, Leads, Over };

    /// Only a change that can be run again may share: the failure of another could undo it.
    bool MayShare() const { return mode == SqlMode::Write; }

    SqlMode mode;
    const Work& work;
    Clock::time_point end;
    State state = State::Waiting;
    bool kept = false;  ///< what the work gave
    std::exception_ptr failure{};
    std::condition_variable called{};
};

void SqliteChanges::Run(SqlMode mode, const Work& work) {
    Change change{mode, work, Clock::now() + patience_};
    std::unique_lock lock(mutex_);
    if (givenUp_) {
        ThrowWaitedTooLong(true);
    }
    if (led_) {
        waiting_.push_back(&change);
        Wait(change, lock);
    } else {
        led_ = true;
        change.state = Change::State::Leads;
    }
    if (change.state == Change::State::Leads) {
        Lead(change, lock);
    }
    if (change.failure) {
        std::rethrow_exception(change.failure);
    }
}

void SqliteChanges::Wait(Change& change, std::unique_lock<std::mutex>& lock) {
    change.called.wait_until(lock, change.end,
                             [&] { return change.state != Change::State::Waiting || givenUp_; });
    if (change.state == Change::State::Waiting) {
        std::erase(waiting_, &change);
        ThrowWaitedTooLong(givenUp_);
    }
    // Whoever has taken the change must come to an end with it: its work stands on this thread's stack.
    change.called.wait(lock, [&] { return change.state != Change::State::Taken; });
}

void SqliteChanges::Lead(Change& change, std::unique_lock<std::mutex>& lock) {
    lock.unlock();
    Group group = {&change};
    try {
        writer_.SetPatience(std::max(change.end - Clock::now(), Clock::duration::zero()));
        SqliteTransaction transaction(writer_, change.mode);
        TakeOthers(group);
        RunGroup(group, transaction);
    } catch (...) {
        for (Change* one : group) {
            one->failure = std::current_exception();
        }
    }
    lock.lock();
    for (Change* one : group) {
        one->state = Change::State::Over;
        one->called.notify_one();
    }
    PassOn();
}

/// Whoever has come until now shares the leader's transaction, if that may be shared.
void SqliteChanges::TakeOthers(Group& group) {
    const std::scoped_lock lock(mutex_);
    while (group.front()->MayShare() && !waiting_.empty() && waiting_.front()->MayShare()) {
        group.push_back(waiting_.front());
        waiting_.front()->state = Change::State::Taken;
        waiting_.pop_front();
    }
}

void SqliteChanges::RunGroup(const Group& group, SqliteTransaction& transaction) {
    if (group.size() == 1) {
        if (group.front()->work(writer_)) {
            transaction.Commit();
        }
        return;
    }
    if (RunTogether(group, transaction)) {
        return;
    }
    // A full disk undoes a transaction as a whole. What is too large for it must not be the others' failure.
    transaction.Undo();
    for (Change* change : group) {
        RunAlone(*change);
    }
}

/// False when nothing of it was kept although something should be.
bool SqliteChanges::RunTogether(const Group& group, SqliteTransaction& transaction) {
    for (Change* change : group) {
        try {
            RunWithin(*change, transaction);
        } catch (const SqlError&) {
            return false;
        }
        if (!transaction.UnderWay()) {
            return false;
        }
    }
    if (std::none_of(group.begin(), group.end(), [](const Change* change) { return change->kept; })) {
        return true;
    }
    try {
        transaction.Commit();
        return true;
    } catch (const SqlError&) {
        return false;
    }
}

/// Runs the work behind a savepoint, to which everything goes back that is not to be kept.
void SqliteChanges::RunWithin(Change& change, SqliteTransaction& transaction) {
    writer_.Run("SAVEPOINT one_change");
    try {
        change.kept = change.work(writer_);
    } catch (...) {
        change.failure = std::current_exception();
    }
    if (!transaction.UnderWay()) {
        return;
    }
    if (!change.kept) {
        writer_.Run("ROLLBACK TO one_change");
    }
    writer_.Run("RELEASE one_change");
}

void SqliteChanges::RunAlone(Change& change) {
    change.kept = false;
    change.failure = nullptr;
    try {
        SqliteTransaction transaction(writer_, change.mode);
        if (change.work(writer_)) {
            transaction.Commit();
        }
    } catch (...) {
        change.failure = std::current_exception();
    }
}

void SqliteChanges::PassOn() {
    if (waiting_.empty()) {
        led_ = false;
        return;
    }
    Change* next = waiting_.front();
    waiting_.pop_front();
    next->state = Change::State::Leads;
    next->called.notify_one();
}

void SqliteChanges::GiveUp() {
    givenUp_ = true;
    writer_.GiveUp();
    const std::scoped_lock lock(mutex_);
    for (Change* change : waiting_) {
        change->called.notify_one();
    }
}

}  // namespace Tarvik::Server
