// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/VoyPortCall.h"

/// Port ids in rows: looked up once, where the port is typed, and carried from then on. Whoever changes a
/// row's name empties its id.
namespace Tarvik::Seaplan {

/// Gives the rows that have no id that of their port by the host's dictionary; an unknown name gets none.
void ResolvePortIds(PortCallRows& rows);
/// Puts back the ids that a schedule pass left out of its rows; `before` are the rows that went into it. Rows
/// that are not the same ports get none.
void KeepPortIds(const PortCallRows& before, PortCallRows& rows);

}  // namespace Tarvik::Seaplan
