// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/client/services/AppFolders.h"
#include "host/client/services/HostTables.h"
#include "host/client/services/RotatingLog.h"
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

/// What is done to an own port; the numbers are those of the request.
enum class PortOperation { Add = 0, Change = 1, Remove = 2 };

/// How a change of an own port went.
enum class PortOutcome {
    Done,
    NotLoaded,  ///< done, but what the server now has could not be read or taken into use
    NoUser,     ///< nobody is logged in
    NoServer,   ///< it did not answer
    Full,       ///< the user has as many as the server keeps
    Gone,       ///< the port was removed meanwhile, as from another computer
    Refused     ///< the server did not take it
};

/// The own ports of whoever is logged in, in use: in the table of points, in the dictionary, and told to the
/// plug-ins (Bus::PortsChanged). Nothing changes here before the server has agreed.
class OwnPorts {
  public:
    /// All outlive this.
    OwnPorts(const AppFolders& folders, HostTables& tables, RotatingLog& log)
        : folders_(folders), tables_(tables), log_(log) {}

    /// In the order of their addition; empty while nobody is logged in.
    const std::vector<Ports::Place>& All() const { return own_; }
    /// Asks the server for those of the link's user and takes them into use; without a user there are none.
    /// False when the server gave no list: those of the same user stay, those of another go. Trouble is said
    /// in the status line and in the log.
    bool Load(ServerLink& link);
    /// Makes the change at the server, by the services on the bus, and loads what it then has. A new port has
    /// no id, one that is removed needs nothing else.
    PortOutcome Change(ServerLink& link, PortOperation operation, const Ports::Place& port);

  private:
    bool Use(std::vector<Ports::Place> own);
    void Tell(const std::string& trouble);

    const AppFolders& folders_;
    HostTables& tables_;
    RotatingLog& log_;
    std::optional<std::string> user_;  ///< whose they are, once the server has given a list
    std::vector<Ports::Place> own_;
    bool inUse_ = false;  ///< whether the table was written with them
};

}  // namespace Tarvik::Client
