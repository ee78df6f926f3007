// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/paste/PastedHeads.h"

/// What the columns of a pasted text are.
namespace Tarvik::Seaplan {

/// Name of the port that a text means, by name or UN/LOCODE in any case; empty for an unknown one.
using PortOfText = std::function<std::string(const std::string&)>;

/// What a text says in a column of the table, as the table writes it; empty where it says nothing.
std::string PastedValue(int column, const std::string& text, const PortOfText& port);

/// What a person can take a column of a pasted text as, in the order of the table.
inline constexpr int kPastedKinds[] = {kNoColumn,  ColPort,     ColPurpose, ColSpeed,
                                       ColWeather, ColPortTime, ColEta,     ColEtd};

/// Finds out what the columns of lines are: by a first line of heads, which names those of the table in the
/// language in force or in English, or else by what most of their cells look like.
PastedColumns UnderstandColumns(const PastedLines& lines, const PortOfText& port);

}  // namespace Tarvik::Seaplan
