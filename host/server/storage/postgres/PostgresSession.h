// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/storage/postgres/PostgresPool.h"

namespace Tarvik::Server {

/// Limits of the use of a data base server.
struct PostgresOptions {
    int connections = 8;                        ///< most at the same time, at least 1
    std::chrono::milliseconds patience{15000};  ///< a data base that is silent for longer is given up
};

/// Runs each operation on a connection of its own. When the connection breaks while a change is being
/// committed, the operation fails although the change may be stored.
class PostgresSession : public SqlSession {
  public:
    /// Connects and brings the data base to the present version; throws SqlError.
    PostgresSession(const std::string& connectionText, const PostgresOptions& options);

    void GiveUp() override { pool_.GiveUp(); }

  protected:
    void Transact(SqlMode mode, const Transaction& work) override;

  private:
    PostgresPool pool_;
};

}  // namespace Tarvik::Server
