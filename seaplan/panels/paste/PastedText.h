// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tarvik::Seaplan {

/// What is read of a text that comes from elsewhere; the rest is dropped.
inline constexpr std::size_t kMostPastedBytes = 262'144;
inline constexpr std::size_t kMostPastedRows = 200;
inline constexpr std::size_t kMostPastedColumns = 30;
inline constexpr std::size_t kMostPastedUnits = 100;  ///< UTF-16 units of a cell

/// Cells of a text as spreadsheets put it on the clipboard, each row as wide as
/// the widest.
struct PastedText {
    std::vector<std::vector<std::string>> rows;
    bool cut = false;  ///< there was more than is read
};

/// Reads UTF-8 text with tabs between cells and line ends between rows. A cell
/// in quotes may hold both, and a quote twice. Blank rows are left out; cells
/// are trimmed, and characters that cannot be seen or turn the direction of
/// writing stand for a blank. Any text gives rows within the limits above.
PastedText ReadPastedText(const std::string& text);

/// A time in the forms of schedules and spreadsheets as `kTimeFormat`:
/// "2024-03-05 08:00", "2024/03/05T08:00:00", "5.3.2024 8:00", "05 Mar 2024
/// 08:00", "05-MAR-2024"; midnight where no hour is told. Nothing for other
/// texts, for a date that does not exist, and for "3/4/2024", which is two
/// days.
std::optional<std::string> ReadPastedTime(const std::string& text);

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
