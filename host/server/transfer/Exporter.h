// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/storage/contract/ServerTime.h"
#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/transfer/TransferFile.h"
#include "host/server/transfer/TransferWriter.h"

namespace Tarvik::Server {

/// Which users go out.
struct ExportChoice {
    std::string user;  ///< one by name; empty: the only one there is
    bool all = false;  ///< all, with their accounts
};

/// Writes users into a file.
class Exporter {
  public:
    /// `accounts` is null where users have none, as in a client.
    Exporter(TransferStorage& records, AccountStorage* accounts, ServerClock clock)
        : records_(records), accounts_(accounts), clock_(std::move(clock)) {}

    /// Makes the file, or puts it in the place of one. False, with an English text in `error` and no file
    /// changed, when that fails.
    bool Run(const ExportChoice& choice, const std::string& path, TransferContent& content,
             std::string& error);

  private:
    bool ChooseUsers(const ExportChoice& choice, std::vector<UserCopy>& users, std::string& error);
    bool AddAccounts(std::vector<UserCopy>& users, std::string& error);
    bool WriteUsers(const std::vector<UserCopy>& users, TransferWriter& writer, TransferContent& content,
                    std::string& error);

    TransferStorage& records_;
    AccountStorage* accounts_;
    ServerClock clock_;
};

}  // namespace Tarvik::Server
