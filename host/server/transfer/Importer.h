// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/transfer/TransferReader.h"

namespace Tarvik::Server {

/// How a file is read in.
struct ImportChoice {
    std::string user;  ///< who gets the records of a file of one user; empty: the user whom the file names
    bool add = false;  ///< whether users may have records already
    bool skipBad = false;  ///< whether the reader leaves out records that cannot be kept
};

/// Whether a text can be a user's name.
using UserNameRule = std::function<bool(const std::string&)>;

/// Reads the users of a file in: all of them wholly, or nobody.
class Importer {
  public:
    /// `accounts` is null where users have none, as in a client; accounts of the file are then left out.
    Importer(TransferStorage& records, AccountStorage* accounts, UserNameRule isUserName)
        : records_(records), accounts_(accounts), isUserName_(std::move(isUserName)) {}

    /// Every user must have an account here, unless the file brings one; an account that is here stays as it
    /// is. False, with an English text in `error`, when nothing was read in. `done` says what was.
    bool Run(const ImportChoice& choice, TransferSource& source, std::string& done, std::string& error);

  private:
    bool Rename(const ImportChoice& choice, TransferContent& content, std::string& error) const;
    bool CheckFree(const ImportChoice& choice, const TransferContent& content, std::string& error);
    bool CheckAccounts(const TransferContent& content, std::vector<TransferContent::User>& missing,
                       std::string& error);
    bool AddAccount(const TransferContent::User& user, std::string& error);
    bool AddRecords(const ImportChoice& choice, const TransferContent& content, TransferSource& source,
                    bool& idsKept, std::string& error);

    TransferStorage& records_;
    AccountStorage* accounts_;
    UserNameRule isUserName_;
};

}  // namespace Tarvik::Server
