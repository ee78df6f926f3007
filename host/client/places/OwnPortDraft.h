// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/client/services/PortDictionary.h"
#include "host/ports/PlaceTable.h"

namespace Tarvik::Client {

/// What can be wrong with an own port as it was typed.
enum class PortFault {
    NameMissing,
    NameLong,      ///< longer than the server keeps
    NameSigns,     ///< a sign in it that rows of port calls cannot carry
    NameTaken,     ///< a port that comes with Seaplan has this name
    NameOwn,       ///< another own port has this name
    PlaceMissing,  ///< no position
    PlaceUnread    ///< no position can be read from the text
};

/// An own port as a person types it.
struct OwnPortDraft {
    std::string name;
    std::string position;  ///< in any form of tarvik/util/TypedPosition.h

    static OwnPortDraft Of(const Ports::Place& port);
    friend bool operator==(const OwnPortDraft&, const OwnPortDraft&) = default;

    /// What is wrong with it among the ports `known`, the user's `own` among them; the one that is changed
    /// has the id `id`.
    std::optional<PortFault> Check(const std::vector<Port>& known, const std::vector<Ports::Place>& own,
                                   const std::string& id) const;
    /// The position, nothing while none can be read.
    std::optional<Server::GeoPoint> Position() const;
    /// "51° 54.50' N 004° 29.00' E", empty while no position can be read.
    std::string Understood() const;
    /// The port as it is kept: the name without blanks around it, the position of `before` where its text is
    /// still as it was filled in, since that text is rounded.
    Ports::Place Kept(const Ports::Place& before) const;
};

}  // namespace Tarvik::Client
