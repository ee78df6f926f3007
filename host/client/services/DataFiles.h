// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace Tarvik::Client {

/// Whether an SQLite file is there and as long as its head says. `error` names the file and says what to do.
bool CheckDatabaseFile(const std::string& path, std::string& error);

/// Whether a file of land or sea network is there and whole. It begins with 8 bytes of its kind and the
/// payload's length (u64, little-endian); the payload follows behind a head of `headBytes`. `error` names the
/// file and says what to do.
bool CheckFramedFile(const std::string& path, const std::string& kind, std::size_t headBytes,
                     std::string& error);

/// CheckFramedFile for the land of the chart and for the sea network.
bool CheckLandFile(const std::string& path, std::string& error);
bool CheckNetworkFile(const std::string& path, std::string& error);

}  // namespace Tarvik::Client
