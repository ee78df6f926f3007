// SPDX-License-Identifier: MIT
#include <filesystem>

#include "host/client/services/AppFolders.h"

namespace Tarvik::Client {

std::string ProgramFolder() {
    std::error_code failed;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
    return failed ? "." : program.parent_path().string();
}

}  // namespace Tarvik::Client
