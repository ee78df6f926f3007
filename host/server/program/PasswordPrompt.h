// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <string>

namespace Tarvik::Server {

/// Reads a password from the stream: its first line without the line end. False when there is none.
bool ReadPasswordLine(std::istream& in, std::string& password);

/// Reads a password from standard input. At a terminal it asks for it twice and shows nothing of it; false
/// when the two differ.
bool AskPassword(std::string& password);

}  // namespace Tarvik::Server
