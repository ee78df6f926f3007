// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/interface/SiblingRecords.h>

#include "host/plugins/fleet/core/FleetText.h"

namespace Tarvik::Fleet {

/// How a change went.
enum class Outcome {
    Done,
    NoUser,    ///< nobody is logged in
    NoServer,  ///< it did not answer
    Full,      ///< the fleet holds as many as it may
    Gone,      ///< the vessel was removed meanwhile, as from another computer
    Refused    ///< the server did not take it
};

/// The user's vessels: the server's, kept here for half a minute, so that whoever asks often does not ask the
/// server each time. Nothing changes here before the server has agreed.
class FleetStore {
  public:
    /// In order of addition; empty when nobody is logged in, and while the server has not answered yet. A
    /// server that stops answering leaves the last known ones.
    const std::vector<Interface::FleetVessel>& Vessels();
    /// The vessel of an id; null when there is none.
    const Interface::FleetVessel* Find(const std::string& id);
    /// Another vessel of the same MMSI or IMO number; null when there is none.
    const Interface::FleetVessel* WithSameNumber(const Interface::FleetVessel& vessel);
    /// Asks the server now. False when it did not answer.
    bool Reload();
    /// Forgets everything, as at a logout.
    void Forget();

    /// Makes the change at the server and, once done, here; an added vessel gets its id.
    Outcome Change(Operation operation, Interface::FleetVessel& vessel);

  private:
    bool IsFresh(const std::string& user) const;
    void Take(Operation operation, const Interface::FleetVessel& vessel);

    std::vector<Interface::FleetVessel> vessels_;
    std::string user_;             ///< whose they are
    std::int64_t askedCsecs_ = 0;  ///< when the server was asked; 0 never
};

}  // namespace Tarvik::Fleet
