// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace Tarvik::Seaplan {

/// What a command would do with rows, as it is shown before it is taken.
struct RowsPreview {
    enum class Command { Paste, Waypoints, RouteAnew, Ways };
    enum class Mark {
        Plain,
        Replaces,  ///< another value stands there now, which the text tells
        Unknown,   ///< it says nothing in its column, or is no port that is known
        Ignored    ///< it is not taken
    };
    struct Cell {
        std::string text;
        Mark mark = Mark::Plain;
        bool operator==(const Cell&) const = default;
    };
    using Cells = std::vector<Cell>;
    Command command = Command::Paste;
    std::vector<std::string> titles;  ///< of the columns; the first tells what a row is of
    std::vector<Cells> rows;
    std::string words;  ///< what it comes to, in sentences
    /// What the person can take a column as; empty where there is nothing to choose.
    std::vector<std::string> kinds{};
    /// Number of its kind, from 0, for each column behind the first one.
    std::vector<std::size_t> taken{};
};

/// The preview once a column, from 0 behind the first one, is taken as another kind.
using ChangeColumn = std::function<RowsPreview(std::size_t column, std::size_t kind)>;

}  // namespace Tarvik::Seaplan
