// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

#include "seaplan/panels/texts/TextId.h"

/// What the port call panel tells in whole sentences, in the language in force.
namespace Tarvik::Seaplan {

struct PortCallNote;
class PortCallSheet;
class PortCallTable;
struct PosBookData;
struct ScheduleFault;

/// Why a calculation or a save came to nothing; empty when nothing failed. A port is told with its row of the
/// table.
std::string CauseText(const ScheduleFault& fault, const PortCallTable& table);
/// The same of a position book, with the row of its list whose speed makes no schedule.
std::string BookCauseText(const ScheduleFault& fault, const PosBookData& book, const PortCallTable& table);
/// What is lost with the changes in the sheet, with the name of its voyage.
std::string LossText(const PortCallSheet& sheet, const std::string& voyage);
/// What is to be known of rows some of whose legs are the known ones of this time (UTC) and later, in the
/// person's zone; nothing without a time.
PortCallNote NoteOfKnownLegs(const std::optional<Util::_datetime_t>& since, const std::string& zone);
/// The same of rows whose route passes these points by choice, told by their names; nothing without one.
PortCallNote NoteOfChoices(const std::vector<std::string>& names);
/// A difference with its sign, as `digits` prints it; one that prints as nothing has none.
std::string SignedText(double value, std::string (*digits)(double));
/// The one line about the rows on show, empty when there is nothing to tell of them.
std::string NoteText(const PortCallNote& note);

}  // namespace Tarvik::Seaplan
