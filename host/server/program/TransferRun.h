// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/net/settings/Settings.h"
#include "host/server/transfer/TransferCommand.h"

namespace Tarvik::Server {

/// Runs an export or import on the data bases of the settings, or of the folder that the command names. A
/// folder with voyages but without accounts is a client's: its users need no accounts, and its own user is
/// meant when none is named. False with an English line in `said`, else what was done.
bool RunTransfer(const TransferCommand& command, Settings settings, std::string& said);

}  // namespace Tarvik::Server
