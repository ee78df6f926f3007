// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace Tarvik::Server {

/// A call of the data base failed. Stays inside this folder: every operation turns it into a fault.
class SqliteError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace Tarvik::Server
