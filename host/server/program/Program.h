// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "host/server/accounts/UserAdmin.h"
#include "host/server/graph/report/StandingLimits.h"
#include "host/server/net/settings/Settings.h"
#include "host/server/net/settings/SettingsReader.h"
#include "host/server/transfer/TransferCommand.h"

namespace Tarvik::Server {

/// What the program takes from its surroundings.
struct ProgramParts {
    Environment environment;
    UserAdmin::PasswordSource passwords;
    std::ostream& out;
    std::ostream& err;
};

/// Runs the program's words, without its name. Gives its exit code: 0 success, 1 failure, 2 a wrong word or
/// setting; every code but 0 comes with one line on the error stream.
int RunProgram(const std::vector<std::string>& words, const ProgramParts& parts);

/// What `seaplan-server --help` says: commands, exit codes, every setting with its default.
std::string HelpText();

/// What `seaplan-server --version` says.
std::string VersionText();

/// Reads a password from the stream: its first line without the line end. False when there is none.
bool ReadPasswordLine(std::istream& in, std::string& password);

/// Reads a password from standard input. At a terminal it asks for it twice and shows nothing of it; false
/// when the two differ.
bool AskPassword(std::string& password);

/// Runs an export or import on the data bases of the settings, or of the folder that the command names. A
/// folder with voyages but without accounts is a client's: its users need no accounts, and its own user is
/// meant when none is named. False with an English line in `said`, else what was done.
bool RunTransfer(const TransferCommand& command, Settings settings, std::string& said);

/// Whether the words are "route ...", "distances FILE" or "distances --all".
bool IsRouteCommand(const std::vector<std::string>& words);

/// Answers such words from the network of a file under an operator's rules. False with an English line in
/// `said`, else the answer, with its line ends.
bool RunRouteCommand(const std::vector<std::string>& words, const std::string& networkFile,
                     const OperatorRules& rules, std::string& said);

}  // namespace Tarvik::Server
