// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace Tarvik::Seaplan {

/// ASCII letters in capitals; others stand as they are. Names are compared so.
std::string FoldedName(const std::string& text);

/// Names of ports by what else they are called, folded: UN/LOCODEs, the table's other names ("Pusan"), a name
/// without the region behind its comma ("Naha"), and each side of a slash ("Fukuoka"). What would mean two
/// ports means none; a code means more than an other name does, and that more than a part of a name. Empty
/// when the table cannot be read; a column that it lacks gives nothing.
std::map<std::string, std::string> ReadOtherPortNames(const std::string& database);

}  // namespace Tarvik::Seaplan
