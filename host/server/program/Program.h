// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "host/server/accounts/UserAdmin.h"
#include "host/server/net/settings/SettingsReader.h"

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

}  // namespace Tarvik::Server
