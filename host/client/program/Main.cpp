// SPDX-License-Identifier: MIT
#include <cstdio>

#include "host/client/plan/PlanCommand.h"
#include "host/client/services/AppFolders.h"
#include "host/client/services/CommandLine.h"
#include "host/client/shell/Runs.h"

int main(int argc, char** argv) {
    using namespace Tarvik::Client;
    const auto languages = LanguageFiles::In(AppFolders(ProgramFolder(), {}).Languages());
    const CommandLine line = ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc), languages);
    if (line.help) {
        std::fputs(HelpText(LanguageCodes(languages)).c_str(), stdout);
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
