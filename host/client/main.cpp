// SPDX-License-Identifier: MIT
#include <cstdio>

#include "host/client/plan/PlanCommand.h"
#include "host/client/plan/PlanHelp.h"
#include "host/client/session/CommandLine.h"
#include "host/client/shell/PlanRun.h"
#include "host/client/shell/WindowRun.h"

int main(int argc, char** argv) {
    using namespace Tarvik::Client;
    const CommandLine line = ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
    if (line.help) {
        std::fputs(kHelpText, stdout);
        return kExitDone;
    }
    if (line.version) {
        std::puts("Seaplan " SEAPLAN_VERSION);
        return kExitDone;
    }
    if (!line.error.empty()) {
        std::fprintf(stderr, "%s\n", line.error.c_str());
        return kExitBadInput;
    }
    return line.plan ? RunPlan(argc, argv, line) : RunWindow(argc, argv, line);
}
