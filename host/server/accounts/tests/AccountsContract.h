// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "host/server/accounts/AccountStorage.h"

namespace Tarvik::Server {

/// One implementation of accounts under test, on data of its own that end with it.
class AccountsBackend {
  public:
    virtual ~AccountsBackend() = default;
    /// The same data once more, as another process sees them; never null.
    virtual std::unique_ptr<AccountStorage> Open() = 0;
};

using AccountsMaker = std::unique_ptr<AccountsBackend> (*)();

/// What accounts promise, whatever keeps them. An implementation instantiates this suite with a maker of its
/// backend.
class AccountsContract : public testing::TestWithParam<AccountsMaker> {
  protected:
    AccountsContract() : backend_(GetParam()()) {}

    std::unique_ptr<AccountStorage> Open() { return backend_->Open(); }
    static std::string UserOf(AccountStorage& accounts, const std::string& hash, std::int64_t now) {
        return accounts.FindSession(hash, now).Value().value_or("nobody");
    }

  private:
    std::unique_ptr<AccountsBackend> backend_;
};

}  // namespace Tarvik::Server
