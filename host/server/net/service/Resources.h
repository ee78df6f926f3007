// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "host/server/accounts/AccountStorage.h"
#include "host/server/api/RouteSource.h"
#include "host/server/graph/report/StandingLimits.h"
#include "host/server/net/settings/Settings.h"
#include "host/server/storage/sql/SqlStorage.h"

namespace Tarvik::Server {

/// Makes the folder of the data bases, for its owner only, if it is needed and not there. False with a text
/// in `error`.
bool PrepareDataFolder(const Settings& settings, std::string& error);

/// Users and sessions: in the data base server that the settings name, else in a file of the data folder,
/// which must be there. Null with an English text without passwords in `error`.
std::unique_ptr<AccountStorage> OpenAccounts(const Settings& settings, std::string& error);

/// The voyages, kept in the same way, in a file that is made when it is not there. Null with an English text
/// without passwords in `error`.
std::unique_ptr<SqlStorage> OpenVoyages(const Settings& settings, std::string& error);

/// Where the data are, for the log: a folder, or a data base without its password.
std::string DescribeData(const Settings& settings);

/// Refuses every request for a route, for a server without a sea network.
class NoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view requestJson) override;
    std::string Nearest(std::string_view requestJson) override;
};

/// The network file that was installed with `program` ("…/bin/seaplan-server":
/// "…/share/seaplan/network.bin"); empty when there is none.
std::string NetworkBeside(const std::string& program);

/// The source of routes over a network file under an operator's rules (the settings `passages_forbidden` to
/// `southern_limit`); for an empty name and for "none" one that refuses every request. Null, with an English
/// text in `error`, when the file or a rule cannot be used.
std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, const OperatorRules& rules,
                                        std::string& error);

}  // namespace Tarvik::Server
