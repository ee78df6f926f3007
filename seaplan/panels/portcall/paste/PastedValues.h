// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

/// What a single cell of a pasted text says.
namespace Tarvik::Seaplan {

/// Name of the port that a text means, by name or UN/LOCODE in any case; empty for an unknown one.
using PortOfText = std::function<std::string(const std::string&)>;

/// What a text says in a column of the table, as the table writes it; empty where it says nothing.
std::string PastedValue(int column, const std::string& text, const PortOfText& port);

}  // namespace Tarvik::Seaplan
