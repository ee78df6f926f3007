// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace Tarvik::Util {

/// How a data file of our own begins: with 8 bytes that name its kind and version, then its payload's length
/// (u64, little-endian) and, where the kind has one, a sum of the payload. The payload follows to the end of
/// the file. Who ships such a file looks at its head; who reads it knows the rest.
struct FileKind {
    std::string_view name;  ///< the first 8 bytes, the last two digits the version
    std::size_t headBytes;  ///< what stands before the payload
};

/// The land of the chart.
inline constexpr FileKind kLandKind{"LANDV001", 16};
/// The sea network, with a sum.
inline constexpr FileKind kNetworkKind{"SEANET05", 24};

static_assert(kLandKind.name.size() == 8 && kNetworkKind.name.size() == 8);

}  // namespace Tarvik::Util
