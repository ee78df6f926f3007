// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

/// What a single cell of a pasted text says.
namespace Tarvik::Seaplan {

/// Name of the port that a text means, by name or UN/LOCODE in any case; empty for an unknown one.
using PortOfText = std::function<std::string(const std::string&)>;

/// ASCII letters in lower case.
std::string SmallLetters(std::string text);
/// A number as a whole, with a point or a comma, before one of these endings; nothing for another text.
std::optional<double> PastedNumber(const std::string& text, std::initializer_list<std::string_view> endings);
/// What a text says in a column of the table, as the table writes it; empty where it says nothing.
std::string PastedValue(int column, const std::string& text, const PortOfText& port);

}  // namespace Tarvik::Seaplan
