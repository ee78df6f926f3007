// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

/// UN/LOCODEs of ports. They stand apart from the other parts of the table, which many read: only a paste
/// needs them.
namespace Tarvik::Seaplan {

/// Names of ports by their five-letter codes, in capitals. Empty when the table cannot be read or has none.
std::map<std::string, std::string> ReadPortNamesByCode(const std::string& database);

}  // namespace Tarvik::Seaplan
