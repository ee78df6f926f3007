// SPDX-License-Identifier: MIT
#include "host/geo/MappedFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Tarvik::Server {

namespace {

// The system names a function so, too.
using FileStatus = struct stat;

}  // namespace

std::shared_ptr<const MappedFile> MappedFile::Open(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return nullptr;
    }
    FileStatus about{};
    void* memory = MAP_FAILED;
    const bool isFile = fstat(file, &about) == 0 && S_ISREG(about.st_mode);
    const auto size = static_cast<std::size_t>(about.st_size);
    if (isFile && size > 0) {
        // All of it is read at once for its checksum.
        memory = mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, file, 0);
    }
    close(file);
    if (isFile && size == 0) {
        return std::shared_ptr<const MappedFile>(new MappedFile(nullptr, 0));
    }
    return memory == MAP_FAILED ? nullptr : std::shared_ptr<const MappedFile>(new MappedFile(memory, size));
}

MappedFile::~MappedFile() {
    if (memory_ != nullptr) {
        munmap(memory_, size_);
    }
}

}  // namespace Tarvik::Server
