// SPDX-License-Identifier: MIT
#pragma once

#include "host/client/services/CommandLine.h"

namespace Tarvik::Client {

/// Runs `plan`: without a window system, or with an invisible one when a picture is asked for. The exit code.
int RunPlan(int argc, char** argv, const CommandLine& line);

}  // namespace Tarvik::Client
