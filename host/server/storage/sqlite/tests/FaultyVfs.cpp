// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/tests/FaultyVfs.h"

#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

namespace Tarvik::Server {

namespace {

/// One open file: the head that SQLite sees, and the real file behind it in the same block.
struct WatchedFile {
    sqlite3_file head;
    FaultyVfs* vfs;
    std::string* path;  ///< null for a file without a name

    sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    static WatchedFile* Of(sqlite3_file* file) { return reinterpret_cast<WatchedFile*>(file); }
};

FaultyVfs* VfsOf(sqlite3_vfs* vfs) {
    return static_cast<FaultyVfs*>(vfs->pAppData);
}

/// A method that only hands on to the real file.
template <auto Method, class... Args>
int Pass(sqlite3_file* file, Args... args) {
    sqlite3_file* real = WatchedFile::Of(file)->Real();
    return (real->pMethods->*Method)(real, args...);
}

int Close(sqlite3_file* file) {
    WatchedFile* watched = WatchedFile::Of(file);
    const int result = watched->Real()->pMethods->xClose(watched->Real());
    delete watched->path;
    watched->path = nullptr;
    return result;
}

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
    WatchedFile* watched = WatchedFile::Of(file);
    if (!watched->vfs->TakeWrite()) {
        return SQLITE_FULL;
    }
    return watched->Real()->pMethods->xWrite(watched->Real(), bytes, count, offset);
}

/// The kept image stands for the disk, so that the real file need not wait for one.
int Sync(sqlite3_file* file, int /*flags*/) {
    WatchedFile* watched = WatchedFile::Of(file);
    if (watched->vfs->SyncsFail()) {
        return SQLITE_IOERR_FSYNC;
    }
    sqlite3_file* real = watched->Real();
    sqlite3_int64 size = 0;
    real->pMethods->xFileSize(real, &size);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    const int read = real->pMethods->xRead(real, bytes.data(), static_cast<int>(size), 0);
    if (read != SQLITE_OK) {
        return read;
    }
    if (watched->path != nullptr) {
        watched->vfs->KeepImage(*watched->path, std::move(bytes));
    }
    return SQLITE_OK;
}

void ShmBarrier(sqlite3_file* file) {
    sqlite3_file* real = WatchedFile::Of(file)->Real();
    real->pMethods->xShmBarrier(real);
}

using M = sqlite3_io_methods;
const sqlite3_io_methods kMethods = {
    2,
    Close,
    Pass<&M::xRead>,
    Write,
    Pass<&M::xTruncate>,
    Sync,
    Pass<&M::xFileSize>,
    Pass<&M::xLock>,
    Pass<&M::xUnlock>,
    Pass<&M::xCheckReservedLock>,
    Pass<&M::xFileControl>,
    Pass<&M::xSectorSize>,
    Pass<&M::xDeviceCharacteristics>,
    Pass<&M::xShmMap>,
    Pass<&M::xShmLock>,
    ShmBarrier,
    Pass<&M::xShmUnmap>,
    nullptr,
    nullptr,
};

int Open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    FaultyVfs* faulty = VfsOf(vfs);
    auto* watched = new (file) WatchedFile{{nullptr}, faulty, nullptr};
    const int result = faulty->Real()->xOpen(faulty->Real(), name, watched->Real(), flags, outFlags);
    if (result != SQLITE_OK) {
        return result;
    }
    watched->path = name != nullptr ? new std::string(name) : nullptr;
    watched->head.pMethods = &kMethods;
    return SQLITE_OK;
}

int Delete(sqlite3_vfs* vfs, const char* name, int syncFolder) {
    FaultyVfs* faulty = VfsOf(vfs);
    faulty->DropImage(name);
    return faulty->Real()->xDelete(faulty->Real(), name, syncFolder);
}

}  // namespace

FaultyVfs::FaultyVfs() : real_(sqlite3_vfs_find(nullptr)), own_(*real_) {
    own_.zName = "faulty";
    own_.szOsFile = static_cast<int>(sizeof(WatchedFile)) + real_->szOsFile;
    own_.pAppData = this;
    own_.pNext = nullptr;
    own_.xOpen = Open;
    own_.xDelete = Delete;
    sqlite3_vfs_register(&own_, 1);
}

FaultyVfs::~FaultyVfs() {
    sqlite3_vfs_unregister(&own_);
    sqlite3_vfs_register(real_, 1);
}

bool FaultyVfs::TakeWrite() {
    if (writesLeft_ < 0) {
        return true;
    }
    if (writesLeft_ == 0) {
        return false;
    }
    --writesLeft_;
    return true;
}

void FaultyVfs::CutPower(const std::string& from, const std::string& to) const {
    namespace fs = std::filesystem;
    for (const auto& [name, bytes] : images_) {
        const fs::path path(name);
        std::error_code failed;
        if (!fs::equivalent(path.parent_path(), from, failed)) {
            continue;
        }
        std::ofstream(fs::path(to) / path.filename(), std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
}

}  // namespace Tarvik::Server
