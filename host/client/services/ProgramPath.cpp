// SPDX-License-Identifier: MIT
#include "host/client/services/AppFolders.h"

#include <filesystem>

namespace Tarvik::Client {

std::string ProgramFolder() {
    std::error_code failed;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
    return failed ? "." : program.parent_path().string();
}

}  // namespace Tarvik::Client
