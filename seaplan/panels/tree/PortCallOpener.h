// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

/// What the tree asks of the port call panel.
class PortCallOpener {
  public:
    virtual ~PortCallOpener() = default;
    /// Every click on a voyage's row sets the voyage of the next opening.
    virtual void SetVoyage(const std::string& vi) = 0;
    /// Fills the panel from the voyage; negative on failure.
    virtual int FillForVoyage(int mode) = 0;
    /// Empties the panel to six rows.
    virtual void Reset() = 0;
    /// Puts the panel beside the tree and shows it.
    virtual void ShowBesideTree() = 0;
    /// Asks what becomes of changes that are not saved; false when the voyage on show has to stay with them.
    virtual bool AskToLeave() = 0;
    /// Fills the panel with a fresh correction from AIS, ready to be recalculated; negative on failure.
    virtual int ShowAisCorrection() = 0;
    /// Time of that correction, `kTimeFormat` in the user's zone.
    virtual void SetCorrectionTime(const std::string& time) = 0;
};

}  // namespace Tarvik::Seaplan
