// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace Tarvik::Server {

/// A file that is there whole or not at all: written beside its place, for its owner's eyes only, and moved
/// into it when it is complete and on disk. What stood there before stays until then.
class AtomicFile {
  public:
    explicit AtomicFile(std::string path) : path_(std::move(path)) {}
    /// Removes what was not committed.
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    /// False, with an English text in `error`, when the folder takes no file, or when something else than a
    /// file stands there: a link or a device is not replaced.
    bool Open(std::string& error);
    /// A failure is kept and told by Commit.
    void Write(std::string_view bytes);
    /// Puts the file in its place, on disk before it answers. False, with an English text in `error`, when a
    /// write or this failed; what stood there before stays.
    bool Commit(std::string& error);

  private:
    void Flush();
    void WriteAll(std::string_view bytes);
    bool Fail(std::string& error) const;
    /// Whether what stands at the path, if anything, may be replaced.
    bool MayReplace(std::string& error) const;

    std::string path_;
    std::string draft_;  ///< its name until it is committed; empty when there is none
    int file_ = -1;
    int failure_ = 0;  ///< errno of the first failure
    std::string buffer_;
};

}  // namespace Tarvik::Server
