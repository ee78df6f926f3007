// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/geo/ByteReader.h"
#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// What in a network names something that is not there or cannot be; empty when all fits.
std::string FaultOf(const NetworkData& data);

/// Reads and writes the sea network's file.
///
/// Layout, little-endian: the 8 bytes "SEANET05", the payload's length (u64), its `Checksum` (u64), the
/// payload. In the payload every list is its count (u32) and its items, every text its length (u32) and its
/// bytes; positions are two i32 in units of 1e-5 degrees. The order is nodes, edges, masks, route points,
/// ports, land rings, rings of closed areas, reach of the route points, 1 (u8) where tables follow or 0. The
/// tables lie as they are used in memory: how many numbers (u64), zeros up to a multiple of 8 bytes, the
/// numbers.
class SeaNetworkFile {
  public:
    /// Writes the file; returns an error text, empty on success.
    static std::string Write(const std::string& path, const NetworkData& data);

    /// The network of the file, which is mapped into memory as long as its tables are in use, or nothing and
    /// `error` set when the file is missing, foreign, cut, damaged or
    /// inconsistent.
    static std::optional<NetworkData> Read(const std::string& path, std::string& error);

    static std::string Encode(const NetworkData& data);
    static std::optional<NetworkData> Decode(const std::string& bytes, std::string& error);

    /// FNV-1a sums of the payload's 8-byte words, every fourth word in the same one, and of these four and
    /// the bytes left over: any changed byte changes it.
    static std::uint64_t Checksum(std::string_view payload);

  private:
    /// The tables stay in `bytes`, which `keeper` holds.
    static std::optional<NetworkData> Decode(std::string_view bytes,
                                             const std::shared_ptr<const void>& keeper, std::string& error);
    static std::string PutPayload(const NetworkData& data);
    static NetworkData GetPayload(ByteReader& r, const std::shared_ptr<const void>& keeper);
};

}  // namespace Tarvik::Server
