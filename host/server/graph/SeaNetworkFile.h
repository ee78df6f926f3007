// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// What in a network names something that is not there or cannot be; empty when all fits.
std::string FaultOf(const NetworkData& data);

/// Reads and writes the sea network's file.
///
/// Layout, little-endian: the 8 bytes "SEANET02", the payload's length (u64), its FNV-1a sum (u64), the
/// payload. In the payload every list is its count (u32) and its items, every text its length (u32) and its
/// bytes; positions are two i32 in units of 1e-5 degrees. The order is nodes, edges, masks, route points,
/// ports, land rings, rings of closed areas, reach of the route points.
class SeaNetworkFile {
  public:
    /// Writes the file; returns an error text, empty on success.
    static std::string Write(const std::string& path, const NetworkData& data);

    /// The network, or nothing and `error` set when the file is missing, foreign, cut, damaged or
    /// inconsistent.
    static std::optional<NetworkData> Read(const std::string& path, std::string& error);

    static std::string Encode(const NetworkData& data);
    static std::optional<NetworkData> Decode(const std::string& bytes, std::string& error);
};

}  // namespace Tarvik::Server
