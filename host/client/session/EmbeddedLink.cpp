// SPDX-License-Identifier: MIT
#include "host/client/session/EmbeddedLink.h"

#include "host/client/session/LateRouteSource.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace Tarvik::Client {

EmbeddedLink::EmbeddedLink(std::string databaseFile, std::string networkFile)
    : databaseFile_(std::move(databaseFile)), networkFile_(std::move(networkFile)) {}

bool EmbeddedLink::Connect(std::string& error) {
    if (server_) return true;
    if (!CheckNetworkFile(networkFile_, error)) return false;
    std::string reason;
    server_ =
        Server::EmbeddedServer::Open(databaseFile_, std::make_unique<LateRouteSource>(networkFile_), reason);
    if (!server_) {
        error = "The voyage data base " + databaseFile_ + " cannot be opened (" + reason +
                "). Make it readable and writable, or name another folder with --data DIR.";
    }
    return server_ != nullptr;
}

std::string EmbeddedLink::Exchange(const std::string& user, const Interface::VoyServerRequest& request) {
    return server_ ? server_->Exchange(user, &request) : std::string();
}

bool CheckNetworkFile(const std::string& path, std::string& error) {
    constexpr std::size_t kHeadBytes = 24;
    std::array<unsigned char, kHeadBytes> head{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(head.data()), head.size());
    std::uint64_t payload = 0;
    for (int i = 15; i >= 8; --i) payload = (payload << 8U) | head[static_cast<std::size_t>(i)];
    std::error_code failed;
    const auto size = std::filesystem::file_size(path, failed);
    const bool whole =
        file && !failed && std::memcmp(head.data(), "SEANET01", 8) == 0 && size == payload + kHeadBytes;
    if (!whole) {
        error = "The sea network " + path + " is missing or cut short. Build or install the client again.";
    }
    return whole;
}

}  // namespace Tarvik::Client
