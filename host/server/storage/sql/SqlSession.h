// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <exception>
#include <functional>
#include <optional>
#include <utility>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

/// Who waits longer than this for a lock or a connection waits for something broken, and is told so.
inline constexpr std::chrono::seconds kLockPatience{10};
/// What a data base server ends a statement after, locks that it waits for included.
inline constexpr std::chrono::seconds kStatementPatience{14};
/// A data base server that is silent for longer than it may work is given up.
inline constexpr std::chrono::seconds kSilencePatience{15};
static_assert(kLockPatience < kStatementPatience && kStatementPatience < kSilencePatience,
              "the one who knows best what is wrong gives up first");

/// Whether a transaction changes anything, and how often its work can be run.
enum class SqlMode {
    Read,
    Write,  ///< work that may be run again after it was undone
    Once,   ///< changes too, by work that can be run only once
};

/// The connections to one data base. Runs each operation as one transaction and turns what fails into a
/// fault. Safe to call from any thread.
class SqlSession {
  public:
    SqlSession() = default;
    virtual ~SqlSession() = default;
    SqlSession(const SqlSession&) = delete;
    SqlSession& operator=(const SqlSession&) = delete;

    /// `work(connection)` gives an Outcome; anything but success undoes what it did. It may be run more than
    /// once, by another thread while this one waits; what an earlier run did was undone.
    template <class Work>
    auto Write(Work&& work) -> decltype(work(std::declval<SqlConnection&>())) {
        return Guarded(SqlMode::Write, work);
    }
    /// The same for work that is run once only, since it uses up what it stores.
    template <class Work>
    auto WriteOnce(Work&& work) -> decltype(work(std::declval<SqlConnection&>())) {
        return Guarded(SqlMode::Once, work);
    }
    /// The same for work that changes nothing. It waits for no writer and sees what was stored when it began.
    template <class Work>
    auto Read(Work&& work) -> decltype(work(std::declval<SqlConnection&>())) {
        return Guarded(SqlMode::Read, work);
    }

    /// Ends every wait for a lock, a connection or an answer, now and from now on, with a fault.
    virtual void GiveUp() = 0;

  protected:
    /// Gives true when what it did is to be kept.
    using Transaction = std::function<bool(SqlConnection&)>;

    /// Runs the work in one transaction. What is kept is on disk when this returns; everything else, also
    /// when the work throws, is undone. Throws SqlError, and SqlDoubt when it may be kept or not.
    virtual void Transact(SqlMode mode, const Transaction& work) = 0;

  private:
    template <class Work>
    auto Guarded(SqlMode mode, Work& work) -> decltype(work(std::declval<SqlConnection&>())) {
        try {
            std::optional<decltype(work(std::declval<SqlConnection&>()))> outcome;
            Transact(mode, [&outcome, &work](SqlConnection& connection) {
                outcome.emplace(work(connection));
                return outcome->Succeeded();
            });
            return std::move(*outcome);
        } catch (const SqlDoubt& doubt) {
            return Fault{FaultReason::MaybeStored, doubt.what()};
        } catch (const std::exception& error) {
            return Fault{FaultReason::StorageFailed, error.what()};
        }
    }
};

}  // namespace Tarvik::Server
