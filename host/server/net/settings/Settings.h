// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Tarvik::Server {

/// Threads that read where nothing else is set: one a core, at least two.
int DefaultWorkers();

/// Everything that an operator sets. The texts of the keys stand in SettingsTable.cpp.
struct Settings {
    std::string data = "/var/lib/seaplan-server";
    std::string database;  ///< connection text of PostgreSQL, with a secret; empty: files in `data`
    std::string network;
    std::string passagesForbidden;
    std::string passagesOpened;
    std::string areasForbidden;
    double northernLimit = 90.0;   ///< degrees
    double southernLimit = -90.0;  ///< degrees
    std::string address = "127.0.0.1";
    std::uint16_t port = 8470;
    std::string tlsCertificate;
    std::string tlsKey;
    bool allowPlain = false;
    int workers = DefaultWorkers();
    int writers = 0;  ///< 0: as WritersOf says
    int sessionHours = 12;
    int loginAttemptsPerUser = 10;
    int loginAttemptsPerAddress = 30;
    int loginWindowMinutes = 15;
    int maxBodyKilobytes = 2048;
    int maxConnections = 1000;
    int maxConnectionsPerAddress = 64;
    int maxQueue = 1000;
    int idleSeconds = 60;
    int requestSeconds = 30;
    int stopSeconds = 20;
    bool logRequests = true;
};

/// Threads that change: as set, else what the storage can use. With files all wait for one disk, whose syncs
/// they share, so that the more of them may wait the better; with PostgreSQL each has a connection and a
/// process of the data base.
int WritersOf(const Settings& settings);

/// One key of the settings.
struct SettingsEntry {
    std::string_view key;
    std::string_view meaning;
    /// Sets the value; gives what it must be when the text is none, else an empty text.
    std::function<std::string(Settings&, std::string_view)> set;
    std::function<std::string(const Settings&)> print;
    bool secret = false;  ///< whether the value must not be shown
};

/// All keys in the order of the documentation.
const std::vector<SettingsEntry>& SettingsTable();

}  // namespace Tarvik::Server
