// SPDX-License-Identifier: MIT
#include "host/client/services/AppFolders.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace Tarvik::Client {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string UsualDataFolder() {
    if (const std::string own = Environment("SEAPLAN_DATA"); !own.empty()) return own;
    if (const std::string xdg = Environment("XDG_DATA_HOME"); !xdg.empty())
        return (fs::path(xdg) / "seaplan").string();
    const std::string home = Environment("HOME");
    return (fs::path(home.empty() ? "." : home) / ".local" / "share" / "seaplan").string();
}

/// Whether `target` already is what `source` is; a shipped file that was rebuilt or a copy that was cut
/// differs.
bool UpToDate(const fs::path& source, const fs::path& target) {
    std::error_code failed;
    if (!fs::exists(target, failed) || fs::file_size(target, failed) != fs::file_size(source, failed))
        return false;
    return !failed && fs::last_write_time(target, failed) >= fs::last_write_time(source, failed) && !failed;
}

}  // namespace

AppFolders::AppFolders(const std::string& programFolder, const std::string& dataFolder) {
    const fs::path program(programFolder);
    share_ = (program / ".." / "share" / "seaplan").lexically_normal().string();
    const fs::path installed = program / ".." / "lib" / "seaplan" / "plugins";
    std::error_code failed;
    const fs::path plugins = fs::is_directory(installed, failed) ? installed : program / ".." / "lib";
    plugins_ = plugins.lexically_normal().string();
    data_ =
        fs::absolute(dataFolder.empty() ? UsualDataFolder() : dataFolder, failed).lexically_normal().string();
}

std::string AppFolders::ShareFile(const std::string& name) const {
    std::error_code failed;
    const fs::path nested = fs::path(share_) / "businessdata" / name;
    return fs::exists(nested, failed) ? nested.string() : (fs::path(share_) / name).string();
}

std::string AppFolders::BusinessData(const std::string& name) const {
    return (fs::path(data_) / "businessdata" / name).string();
}

bool AppFolders::probe(std::string& error) const {
    const fs::path file = fs::path(data_) / ".writable";
    const std::array<char, 4096> block{};
    bool good = false;
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(block.data(), block.size());
        out.flush();
        good = out.good();
    }
    std::error_code failed;
    fs::remove(file, failed);
    if (!good) {
        error = "The data folder " + data_ +
                " cannot be written or is full. Make it writable and free some space, or name another folder "
                "with "
                "--data DIR.";
    }
    return good;
}

bool AppFolders::refresh(const std::string& name, const std::string& target, std::string& error) const {
    const fs::path source = ShareFile(name);
    const fs::path file = BusinessData(target);
    std::error_code failed;
    if (!fs::exists(source, failed)) {
        error = "The shipped file " + source.string() + " is missing. Build or install the client again.";
        return false;
    }
    if (UpToDate(source, file)) return true;
    // A copy under another name, then a rename: a client that is killed here leaves no half file behind.
    const fs::path fresh = file.string() + ".new";
    fs::copy_file(source, fresh, fs::copy_options::overwrite_existing, failed);
    if (!failed) fs::rename(fresh, file, failed);
    if (!failed) return true;
    error = "The file " + file.string() + " cannot be written (" + failed.message() +
            "). Free some space or name another folder with --data DIR.";
    fs::remove(fresh, failed);
    return false;
}

bool AppFolders::Prepare(std::string& error) const {
    std::error_code failed;
    fs::create_directories(fs::path(data_) / "businessdata" / "seaplan", failed);
    if (failed) {
        error = "The data folder " + data_ + " cannot be made (" + failed.message() +
                "). Make its place writable, or name another folder with --data DIR.";
        return false;
    }
    if (!probe(error)) return false;
    return refresh("trvdb.db", "trvdb.db", error) && refresh("land.bin", "land.bin", error) &&
           refresh("ship.png", "seaplan/ship.png", error) &&
           CheckDatabaseFile(BusinessData("trvdb.db"), error);
}

bool CheckDatabaseFile(const std::string& path, std::string& error) {
    std::array<unsigned char, 32> head{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(head.data()), head.size());
    std::error_code failed;
    const auto size = fs::file_size(path, failed);
    const unsigned pageField = head[16] * 256U + head[17];
    const std::uintmax_t pageSize = pageField == 1 ? 65536U : pageField;
    const std::uintmax_t pages = (std::uintmax_t{head[28]} << 24U) | (std::uintmax_t{head[29]} << 16U) |
                                 (std::uintmax_t{head[30]} << 8U) | head[31];
    const bool whole = file && !failed && std::memcmp(head.data(), "SQLite format 3", 16) == 0 &&
                       size == pages * pageSize && pages > 0;
    if (!whole)
        error = "The data file " + path +
                " is missing or cut short. Delete it and build or install the client again.";
    return whole;
}

}  // namespace Tarvik::Client
