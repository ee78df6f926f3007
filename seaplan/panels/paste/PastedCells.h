// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

/// What a single cell of a pasted text says, whatever table it goes into.
namespace Tarvik::Seaplan {

/// A cell of a pasted text as it was understood.
struct PastedCell {
    std::string text;     ///< as it was pasted
    std::string value{};  ///< text of the table's cell, empty where nothing can stand there
    bool known = true;    ///< false for a text that says nothing in its column, and for a port nobody knows
};

/// ASCII letters in lower case.
std::string SmallLetters(std::string text);
/// A number as a whole, with a point or a comma, before one of these endings; nothing for another text.
std::optional<double> PastedNumber(const std::string& text, std::initializer_list<std::string_view> endings);
/// A speed as a number, alone or before a word for knots.
std::optional<double> PastedSpeed(const std::string& text);
/// Whether a text tells a speed in another unit on offer than this one.
bool TellsOtherSpeedUnit(const std::string& text, std::string_view unit);

}  // namespace Tarvik::Seaplan
