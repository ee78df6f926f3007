// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "host/client/services/AppFolders.h"

namespace Tarvik::Client {

// A lock of the system on an open file ends with the program. A folder where no file can be made is nobody's.
FolderClaim::FolderClaim(const std::string& folder)
    : file_(::open((folder + "/.open").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)),
      alone_(file_ < 0 || ::flock(file_, LOCK_EX | LOCK_NB) == 0) {}

FolderClaim::~FolderClaim() {
    if (file_ >= 0) {
        ::close(file_);
    }
}

}  // namespace Tarvik::Client
