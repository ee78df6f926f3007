// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/postgres/PostgresPool.h"

namespace Tarvik::Server {

/// Limits of the use of a data base server.
struct PostgresOptions {
    int connections = 8;  ///< most at the same time, at least 1
};

/// Runs each operation as one transaction on a connection of its own and turns what fails into a fault.
class PostgresSession {
  public:
    /// Connects and brings the data base to the present version; throws PostgresError.
    PostgresSession(const std::string& connectionText, const PostgresOptions& options);

    /// `work(connection)` gives an Outcome; anything but success undoes what it did.
    template <class Work>
    auto Write(Work&& work) -> decltype(work(std::declval<PostgresConnection&>())) {
        return Transact(PostgresConnection::Mode::Write, work);
    }
    /// A reader waits for no writer and sees what was stored when it began.
    template <class Work>
    auto Read(Work&& work) -> decltype(work(std::declval<PostgresConnection&>())) {
        return Transact(PostgresConnection::Mode::Read, work);
    }

  private:
    template <class Work>
    auto Transact(PostgresConnection::Mode mode, Work& work)
        -> decltype(work(std::declval<PostgresConnection&>())) {
        try {
            PostgresLease lease(pool_, mode);
            auto outcome = work(*lease);
            if (outcome.Succeeded()) {
                (*lease).Commit();
            }
            return outcome;
        } catch (const std::exception& error) {
            return Fault{FaultReason::StorageFailed, error.what()};
        }
    }

    PostgresPool pool_;
};

}  // namespace Tarvik::Server
