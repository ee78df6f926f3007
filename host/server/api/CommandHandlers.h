// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/api/CommandTable.h"

/// The handlers of the commands. Each gives the reply of a success and throws Refusal, having changed
/// nothing.
namespace Tarvik::Server {

/// Categories and voyages of the user that the request names, who must be the caller.
std::string LoadCatalog(const CommandCall& call);
/// `type` 0 create, 1 to the recycle bin, 2 recover, 3 destroy, 4 rename.
std::string ChangeCategory(const CommandCall& call);
/// `type` 0 create, 1 rename, 2 to the recycle bin, 3 recover, 4 destroy, 5 change vessel, 6 route display, 7
/// AIS tracing.
std::string ChangeVoyage(const CommandCall& call);
/// Stores all seven consumption figures, in kg/day.
std::string StoreFigures(const CommandCall& call);

/// The book of a voyage with its rows, or an empty array.
std::string LoadBook(const CommandCall& call);
/// Makes a book for a voyage that has none.
std::string CreateBook(const CommandCall& call);
/// Replaces ("0") or appends ("1") rows.
std::string WriteBookRows(const CommandCall& call);
/// Sets the date of a book.
std::string SetBookDate(const CommandCall& call);
/// All port calls in the order of their numbers.
std::string LoadPortCalls(const CommandCall& call);
/// Replaces all port calls.
std::string ReplacePortCalls(const CommandCall& call);
/// All AIS modification times in the order of their addition.
std::string LoadAisTimes(const CommandCall& call);
/// Adds an AIS modification time.
std::string AddAisTime(const CommandCall& call);

/// The vessels of the user that the request names, who must be the caller.
std::string LoadFleet(const CommandCall& call);
/// `type` 0 add, 1 change, 2 remove.
std::string ChangeFleet(const CommandCall& call);

/// The own ports of the user that the request names, who must be the caller.
std::string LoadPlaces(const CommandCall& call);
/// `type` 0 add, 1 change, 2 remove.
std::string ChangePlace(const CommandCall& call);
/// The sea route along stops, which may be own ports of the user's.
std::string PlanRoute(const CommandCall& call);
/// The way from a position to a port, which may be one of the user's own.
std::string FindNearest(const CommandCall& call);

/// The remarks of one object: `optype` 1 add, 2 delete one, 3 change, 4 list.
std::string KeepRemarks(const CommandCall& call);

}  // namespace Tarvik::Server
