// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace Tarvik::Server {

/// A call of the data base server failed. Stays below the operations of storage and accounts: every one of
/// them turns it into a fault. Its text is one line and holds no password.
class PostgresError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace Tarvik::Server
