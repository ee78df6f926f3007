// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <tarvik/skin/EntryForm.h>

#include "host/plugins/fleet/core/VesselDraft.h"

namespace Tarvik::Fleet {

/// The small window in which one vessel is added or changed.
class VesselForm : public Skin::EntryForm {
  public:
    /// Saves a vessel; an empty text, or why it was not saved.
    using Save = std::function<QString(Interface::FleetVessel vessel)>;

    /// `closed` is called when the window has gone, saved or not.
    VesselForm(QWidget* mainWindow, Save save, std::function<void()> closed);

    /// Fills the fields; one without an id is added, else changed. Does not show the window.
    void Open(const Interface::FleetVessel& vessel);

  protected:
    void Commit() override;

  private:
    Save save_;
    std::string id_;  ///< of the vessel that is changed
};

}  // namespace Tarvik::Fleet
