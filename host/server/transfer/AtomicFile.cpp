// SPDX-License-Identifier: MIT
#include "host/server/transfer/AtomicFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace Tarvik::Server {

namespace {

constexpr std::size_t kBufferBytes = 256U * 1024U;

/// Brings the name of a file to disk as well.
int SyncFolder(const std::string& folder) {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return errno;
    }
    const int failure = ::fsync(handle) == 0 ? 0 : errno;
    ::close(handle);
    return failure;
}

std::string FolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

}  // namespace

AtomicFile::~AtomicFile() {
    if (file_ >= 0) {
        ::close(file_);
    }
    if (!draft_.empty()) {
        ::unlink(draft_.c_str());
    }
}

bool AtomicFile::MayReplace(std::string& error) const {
    std::error_code failed;
    const std::filesystem::file_status status = std::filesystem::symlink_status(path_, failed);
    // That a folder cannot be replaced the system says itself.
    if (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status) ||
        std::filesystem::is_directory(status)) {
        return true;
    }
    error = "cannot write " + path_ + ": it is " +
            (std::filesystem::is_symlink(status) ? "a link" : "no file") + "; name a file of its own";
    return false;
}

bool AtomicFile::Open(std::string& error) {
    if (!MayReplace(error)) {
        return false;
    }
    std::string pattern = path_ + ".XXXXXX";
    file_ = ::mkostemp(pattern.data(), O_CLOEXEC);
    if (file_ < 0) {
        failure_ = errno;
        return Fail(error);
    }
    draft_ = pattern;
    return true;
}

void AtomicFile::Write(std::string_view bytes) {
    buffer_ += bytes;
    if (buffer_.size() >= kBufferBytes) {
        Flush();
    }
}

bool AtomicFile::Commit(std::string& error) {
    Flush();
    if (failure_ == 0 && ::fsync(file_) != 0) {
        failure_ = errno;
    }
    if (::close(file_) != 0 && failure_ == 0) {
        failure_ = errno;
    }
    file_ = -1;
    if (failure_ == 0 && !MayReplace(error)) {
        return false;
    }
    if (failure_ == 0 && std::rename(draft_.c_str(), path_.c_str()) != 0) {
        failure_ = errno;
    }
    if (failure_ != 0) {
        return Fail(error);
    }
    draft_.clear();
    failure_ = SyncFolder(FolderOf(path_));
    return failure_ == 0 || Fail(error);
}

void AtomicFile::Flush() {
    if (failure_ == 0) {
        WriteAll(buffer_);
    }
    buffer_.clear();
}

void AtomicFile::WriteAll(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            failure_ = errno;
            return;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

bool AtomicFile::Fail(std::string& error) const {
    error = "cannot write " + path_ + ": " + std::generic_category().message(failure_);
    return false;
}

}  // namespace Tarvik::Server
