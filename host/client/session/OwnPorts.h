// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/client/services/ServerLink.h"
#include "host/ports/PlaceTable.h"

namespace Tarvik::Client {

/// The ports of a user's own that the server keeps, in the order of their addition; empty from a server that
/// keeps none. Nothing where the server does not answer, refuses, or answers no list of ports. `user` is
/// whose data the link is asked for.
std::optional<std::vector<Ports::Place>> LoadOwnPorts(ServerLink& link, const std::string& user);

/// Makes the table of points at `target` the shipped one with `own` ports beside its own, so that whoever
/// reads it finds them: the old file stays in place until the new one is whole. False with one line that says
/// what is wrong; `target` is then as it was.
bool WritePortTable(const std::string& shipped, const std::string& target,
                    const std::vector<Ports::Place>& own, std::string& error);

}  // namespace Tarvik::Client
