// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace Tarvik::Server {

/// Everything that an operator sets. The texts of the keys stand in SettingsTable.cpp.
struct Settings {
    std::string data = "/var/lib/seaplan-server";
    std::string database;  ///< connection text of PostgreSQL, with a secret; empty: files in `data`
    std::string network;
    std::string address = "127.0.0.1";
    std::uint16_t port = 8470;
    std::string tlsCertificate;
    std::string tlsKey;
    bool allowPlain = false;
    int workers = 2;
    int sessionHours = 12;
    int loginAttemptsPerUser = 10;
    int loginAttemptsPerAddress = 30;
    int loginWindowMinutes = 15;
    int maxBodyKilobytes = 2048;
    int maxConnections = 1000;
    int maxQueue = 1000;
    int idleSeconds = 60;
    int requestSeconds = 30;
    int stopSeconds = 20;
    bool logRequests = true;
};

}  // namespace Tarvik::Server
