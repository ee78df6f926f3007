// SPDX-License-Identifier: MIT
#pragma once

#include "host/client/services/CommandLine.h"

namespace Tarvik::Client {

/// Opens the client's window and runs it, or takes its picture when the command line asks for one. The exit
/// code.
int RunWindow(int argc, char** argv, const CommandLine& line);

}  // namespace Tarvik::Client
