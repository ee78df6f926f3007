// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include <sqlite3.h>

namespace Tarvik::Server {

/// A file system for SQLite that knows what has reached the disk and fails on demand. It is SQLite's default
/// from its making to its end; only one may live at a time, used by one
/// thread at a time.
class FaultyVfs {
  public:
    FaultyVfs();
    ~FaultyVfs();
    FaultyVfs(const FaultyVfs&) = delete;
    FaultyVfs& operator=(const FaultyVfs&) = delete;

    /// Lets `count` more writes of files through and fails the others as a full disk does; below 0 none
    /// fails.
    void FailWritesAfter(int count) { writesLeft_ = count; }
    /// Whether syncing a file fails.
    void FailSyncs(bool fail) { failSyncs_ = fail; }
    /// Calls `told` before each sync of a file, on the thread that syncs.
    void TellSyncs(std::function<void()> told) { told_ = std::move(told); }
    /// Writes into folder `to` each file of folder `from` as it was when it was last synced, which is all
    /// that a loss of power is sure to leave.
    void CutPower(const std::string& from, const std::string& to) const;

    /// For the functions behind the file system only.
    bool TakeWrite();
    bool SyncsFail() const {
        if (told_) {
            told_();
        }
        return failSyncs_;
    }
    void KeepImage(const std::string& path, std::string bytes) { images_[path] = std::move(bytes); }
    void DropImage(const std::string& path) { images_.erase(path); }
    sqlite3_vfs* Real() const { return real_; }

  private:
    sqlite3_vfs* real_;
    sqlite3_vfs own_;
    std::map<std::string, std::string> images_;
    int writesLeft_ = -1;
    bool failSyncs_ = false;
    std::function<void()> told_;
};

}  // namespace Tarvik::Server
