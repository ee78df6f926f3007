// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/plugins/fleet/core/VesselDraft.h"

namespace Tarvik::Fleet {

/// A row of a vessels' file.
struct FileRow {
    int line = 0;  ///< in the file, from 1
    VesselDraft draft;
};

/// Reads a comma, semicolon or tab separated text (UTF-8, with or without a mark before it) whose first line
/// names the columns: "name" and, in any order and case, any of "mmsi", "imo", "call sign", "type", "length",
/// "speed"; others are left out. Fields in double quotes may hold separators, doubled quotes and line breaks.
/// Empty rows are none. Nothing when there is no column "name".
std::optional<std::vector<FileRow>> ReadVesselFile(const std::string& text);

}  // namespace Tarvik::Fleet
