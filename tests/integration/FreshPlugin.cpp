// SPDX-License-Identifier: MIT
#include "tests/integration/FreshPlugin.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

#include <tarvik/core/TrvKernel.h>

#include "tarvik/src/core/BusTesting.h"

namespace fs = std::filesystem;

namespace Tarvik::Integration {

namespace {

/// A file of another place is another library to the loader, with static objects of its own.
[[noreturn]] void RunOn(const fs::path& copy, const std::function<bool(const LoadedPlugin&)>& check) {
    Core::TrvKernel::Instance()->SetObserver({});
    Core::BusTesting::ForgetAll();
    const bool holds = check(LoadedPlugin(copy.string()));
    std::cout.flush();
    std::_Exit(holds ? 0 : 1);
}

}  // namespace

bool HoldsForFreshPlugin(const std::string& file, const std::function<bool(const LoadedPlugin&)>& check) {
    const TestSupport::DataFolder folder;
    const fs::path copy = folder.Path() / fs::path(file).filename();
    fs::copy_file(file, copy);
    const pid_t child = fork();
    if (child == 0) {
        RunOn(copy, check);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace Tarvik::Integration
