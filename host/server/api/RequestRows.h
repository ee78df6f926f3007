// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// The texts of a request that is an array of texts. Refuses anything else, and an array of fewer than
/// `least` texts.
std::vector<std::string> ReadTexts(std::string_view request, std::size_t least);

/// One row "number|port id|port name|purpose|speed|weather factor|hours in port", speed in km/h.
PortCallRecord ReadPortCall(std::string_view row);

/// One row "number|name|longitude|latitude|sailing|spacing|speed|kind", degrees and km/h.
BookRowRecord ReadBookRow(std::string_view row);

}  // namespace Tarvik::Server
