// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

/// Says something in the client's status line, as a failure for which there is no box. It stands there until
/// the next words, or until empty ones take it away.
void TellInStatusLine(const std::string& words);

}  // namespace Tarvik::Seaplan
