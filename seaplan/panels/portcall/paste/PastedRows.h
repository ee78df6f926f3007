// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/portcall/paste/PastedText.h"

namespace Tarvik::Seaplan {

/// A cell of a pasted text as it was understood.
struct PastedCell {
    std::string text;     ///< as it was pasted
    std::string value{};  ///< text of the table's cell, empty where nothing can
                          ///< stand there
    bool known = true;    ///< false for a port that nobody knows, and for a text
                          ///< that says nothing in its column
};

/// Pasted rows with what their columns were taken for.
struct PastedRows {
    static constexpr int kNoColumn = -1;
    std::vector<int> columns;          ///< the table's column of each, kNoColumn where it
                                       ///< holds none of its own
    std::vector<std::string> heads{};  ///< of the columns, empty where there were none
    std::vector<std::vector<PastedCell>> rows;
    bool cut = false;
};

/// Name of the port that a text means, by name or UN/LOCODE in any case; empty
/// for an unknown one.
using PortOfText = std::function<std::string(const std::string&)>;

/// Finds out what the columns of a text are: by a row of heads, which names
/// those of the table in the language in force or in English, or else by what
/// most of their cells look like. Two columns of one kind are told apart for
/// ports alone, where the one that is known counts.
PastedRows UnderstandPasted(const PastedText& text, const PortOfText& port);

/// Makes speeds that their own text or their head tells in another unit than
/// this one ("kts" or "KPH") unknown: a wrong speed would look like a right one.
void LeaveOtherUnits(PastedRows& pasted, const std::string& speedUnit);

}  // namespace Tarvik::Seaplan
