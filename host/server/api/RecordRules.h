// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "host/server/api/Errors.h"
#include "host/server/storage/contract/Records.h"

/// What the server keeps, whoever brings it: a request, or a file of exported users. What passes here is
/// exported, and passes again where it is imported.
namespace Tarvik::Server {

inline constexpr std::size_t kMaxNameBytes = 4096;
inline constexpr std::size_t kMaxBodyBytes = 65536;
/// A remark's object is an id and a port's name together; a row on the wire is not much more than two names.
inline constexpr std::size_t kMaxObjectBytes = kMaxNameBytes * 2;

/// Most bytes of a text in a list of which each user has one.
inline constexpr std::size_t kMaxListTextBytes = 256;
inline constexpr std::size_t kMaxCallSignBytes = 16;

/// What is wrong with a text that may have `most` bytes: TextTooLong, or BadText for a zero byte, which not
/// every data base can keep.
std::optional<ErrorCode> FaultOf(std::string_view text, std::size_t most);

/// What is wrong with a port call; nothing when it can be kept.
std::optional<ErrorCode> FaultOf(const PortCallRecord& call);

/// What is wrong with a row of a position book; nothing when it can be kept.
std::optional<ErrorCode> FaultOf(const BookRowRecord& row);

/// What is wrong with a vessel of a fleet; nothing when it can be kept.
std::optional<ErrorCode> FaultOf(const FleetRecord& vessel);

/// What is wrong with a port of a user's own; nothing when it can be kept.
std::optional<ErrorCode> FaultOf(const PlaceRecord& place);

/// The same of a port call that is about to be saved, which says where and for what and lets the ship move.
/// Rows that earlier programs have stored may lack a port's id or a purpose, or have a weather factor of 1,
/// and come back from a backup as they are.
std::optional<ErrorCode> FaultOfNew(const PortCallRecord& call);

}  // namespace Tarvik::Server
