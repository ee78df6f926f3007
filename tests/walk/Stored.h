// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/walk/FaultyServer.h"

/// What lies on the server, read by the test's own controllers and not by the client's.
namespace Tarvik::Seaplan::Walk {

struct StoredVoyage {
    std::string name;
    int state = InUse;
    std::string flags;  ///< vessel and switches, as one text
    PortCallRows rows;
    bool hasBook = false;
    VoyPositionBook book;
    std::vector<std::string> corrections;
    int loadCode = 0;     ///< of a fresh controller's LoadSchedule
    PortCallRows loaded;  ///< its rows

    std::string schedule;  ///< all that a save writes, as one text

    /// Name, state, vessel and switches.
    std::string Record() const { return name + "|" + std::to_string(state) + "|" + flags; }
};

using Stored = std::map<std::string, StoredVoyage>;

/// Everything of a user. What `known` holds of a voyage that no request of the step has written stays.
Stored ReadStored(PanelDesk& desk, FaultyServer& server, const std::string& user, const Stored& known = {});
/// The voyage whose port calls, book or times a request writes; empty for another request. `stored` tells
/// whose a book is.
std::string ScheduleWrittenBy(const Write& write, const Stored& stored);
/// The value of a member or the first element of a request's text, empty where there is none.
std::string FieldOf(const std::string& text, const std::string& key);

/// What is wrong with a stored schedule that was saved as a whole; empty for nothing. Where the voyage was
/// `corrected` from its ship's positions, miles and speeds are not those of the ways between ports.
std::string FaultOfSchedule(const StoredVoyage& voyage, bool corrected);

}  // namespace Tarvik::Seaplan::Walk
