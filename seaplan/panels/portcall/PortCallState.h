// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/calculation/PortCallColumns.h"

namespace Tarvik::Seaplan {

/// What stands around the table.
struct PortCallState {
    std::string caption;
    std::string voyage{};  ///< name of the voyage on show, which stands behind the caption
    bool changed = false;
    bool canSave = false;
    bool canClear = true;
    bool canOpenBook = false;
    bool canCalculate = false;
    std::string calculateText;
    SummaryTexts summary;
    bool staleSummary = false;  ///< the figures are those of other ports
    std::string speedUnit;
    std::string distanceUnit;
    std::string timeUnit;
    std::string zone;            ///< zone of the times, empty when nobody tells
    std::string note;            ///< one line about the rows on show, mostly empty
    bool distanceTable = false;  ///< the panel serves as the port distance table

    friend bool operator==(const PortCallState&, const PortCallState&) = default;
};

/// What is to be told of the rows on show.
struct PortCallNote {
    enum class Kind {
        None,
        Unfinished,  ///< they have no route of theirs, as a save leaves them that broke off
        KnownLegs,   ///< their legs are known ones, since the server was not there to ask
        ChosenWay    ///< their route passes points that were chosen in place of others
    };
    Kind kind = Kind::None;
    std::string since{};  ///< day of the oldest of these legs, in the zone of the rows
    std::string ways{};   ///< names of these points
};

}  // namespace Tarvik::Seaplan
