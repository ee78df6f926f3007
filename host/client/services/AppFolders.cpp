// SPDX-License-Identifier: MIT
#include "host/client/services/AppFolders.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <tarvik/util/FileUtl.h>

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

/// Bytes that a save of a long voyage may need at once. Less room than that counts as none, so that a save is
/// not begun that could not be finished.
constexpr std::size_t kRoomForOneSave = 1024U * 1024U;

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string UsualDataFolder() {
    if (const std::string own = Environment("SEAPLAN_DATA"); !own.empty()) {
        return own;
    }
    if (const std::string xdg = Environment("XDG_DATA_HOME"); !xdg.empty()) {
        return (fs::path(xdg) / "seaplan").string();
    }
    const std::string home = Environment("HOME");
    return (fs::path(home.empty() ? "." : home) / ".local" / "share" / "seaplan").string();
}

/// Whether `target` already is what `source` is; a shipped file that was rebuilt or a copy that was cut
/// differs.
bool UpToDate(const fs::path& source, const fs::path& target) {
    std::error_code failed;
    if (!fs::exists(target, failed) || fs::file_size(target, failed) != fs::file_size(source, failed)) {
        return false;
    }
    return !failed && fs::last_write_time(target, failed) >= fs::last_write_time(source, failed) && !failed;
}

}  // namespace

AppFolders::AppFolders(const std::string& programFolder, const std::string& dataFolder) {
    const fs::path program(programFolder);
    share_ = (program / ".." / "share" / "seaplan").lexically_normal().string();
    const fs::path installed = program / INSTALLED_PLUGINS;
    std::error_code failed;
    const fs::path plugins = fs::is_directory(installed, failed) ? installed : program / ".." / "lib";
    plugins_ = plugins.lexically_normal().string();
    data_ =
        fs::absolute(dataFolder.empty() ? UsualDataFolder() : dataFolder, failed).lexically_normal().string();
}

std::string AppFolders::ShareFile(const std::string& name) const {
    std::error_code failed;
    const fs::path nested = fs::path(share_) / Util::kBusinessDataFolder / name;
    return fs::exists(nested, failed) ? nested.string() : (fs::path(share_) / name).string();
}

std::string AppFolders::BusinessData(const std::string& name) const {
    return (fs::path(data_) / Util::kBusinessDataFolder / name).string();
}

bool AppFolders::Probe(std::string& error) const {
    const fs::path file = fs::path(data_) / ".writable";
    bool good = false;
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        const std::string block(kRoomForOneSave, '\0');
        out.write(block.data(), static_cast<std::streamsize>(block.size()));
        out.flush();
        good = out.good();
    }
    std::error_code failed;
    fs::remove(file, failed);
    if (!good) {
        error = "The data folder " + data_ +
                " cannot be written or is full. Make it writable and free some space, or name another folder "
                "with --data DIR.";
    }
    return good;
}

bool AppFolders::Refresh(const std::string& name, const std::string& target, std::string& error) const {
    const fs::path source = ShareFile(name);
    const fs::path file = BusinessData(target);
    std::error_code failed;
    if (!fs::exists(source, failed)) {
        error = "The shipped file " + source.string() + " is missing. Build or install the client again.";
        return false;
    }
    if (UpToDate(source, file)) {
        return true;
    }
    // A copy under another name, then a rename: a client that is killed here leaves no half file behind.
    const fs::path fresh = file.string() + ".new";
    fs::copy_file(source, fresh, fs::copy_options::overwrite_existing, failed);
    if (!failed) {
        fs::rename(fresh, file, failed);
    }
    if (!failed) {
        return true;
    }
    error = "The file " + file.string() + " cannot be written (" + failed.message() +
            "). Free some space or name another folder with --data DIR.";
    fs::remove(fresh, failed);
    return false;
}

bool AppFolders::Prepare(std::string& error) const {
    std::error_code failed;
    fs::create_directories(fs::path(data_) / Util::kBusinessDataFolder / "seaplan", failed);
    if (failed) {
        error = "The data folder " + data_ + " cannot be made (" + failed.message() +
                "). Make its place writable, or name another folder with --data DIR.";
        return false;
    }
    if (!Probe(error)) {
        return false;
    }
    return CheckDatabaseFile(ShareFile(Util::kPointTableFile), error) &&
           CheckLandFile(ShareFile(Util::kLandFile), error) &&
           Refresh(Util::kPointTableFile, Util::kPointTableFile, error) &&
           Refresh(Util::kLandFile, Util::kLandFile, error) && Refresh("ship.png", "seaplan/ship.png", error);
}

}  // namespace Tarvik::Client
