// SPDX-License-Identifier: MIT
#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <tarvik/util/FileKinds.h>

#include "host/client/services/AppFolders.h"

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

bool Told(bool whole, const std::string& path, std::string& error) {
    if (!whole) {
        error = "The data file " + path + " is missing or cut short. Build or install the client again.";
    }
    return whole;
}

}  // namespace

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
    return Told(whole, path, error);
}

bool CheckFramedFile(const std::string& path, const std::string& kind, std::size_t headBytes,
                     std::string& error) {
    std::array<unsigned char, 16> head{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(head.data()), head.size());
    std::uint64_t payload = 0;
    for (std::size_t i = head.size(); i-- > 8;) {
        payload = (payload << 8U) | head[i];
    }
    std::error_code failed;
    const auto size = fs::file_size(path, failed);
    const bool whole = file && !failed && std::memcmp(head.data(), kind.data(), 8) == 0 &&
                       size >= headBytes && size - headBytes == payload;
    return Told(whole, path, error);
}

namespace {

bool CheckKind(const std::string& path, const Util::FileKind& kind, std::string& error) {
    return CheckFramedFile(path, std::string(kind.name), kind.headBytes, error);
}

}  // namespace

bool CheckLandFile(const std::string& path, std::string& error) {
    return CheckKind(path, Util::kLandKind, error);
}

bool CheckNetworkFile(const std::string& path, std::string& error) {
    return CheckKind(path, Util::kNetworkKind, error);
}

}  // namespace Tarvik::Client
