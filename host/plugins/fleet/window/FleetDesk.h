// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/SiblingRecords.h>

#include "host/plugins/fleet/store/FleetStore.h"
#include "host/plugins/fleet/window/FleetWindow.h"
#include "host/plugins/fleet/window/VesselForm.h"

namespace Tarvik::Interface {
struct PanelShow;
}

namespace Tarvik::Fleet {

/// The plug-in at work: its services and windows, from construction to destruction. Without a window system
/// the services that show nothing are there all the same.
class FleetDesk : public Core::TObject {
  public:
    FleetDesk();
    ~FleetDesk() override;
    FleetDesk(const FleetDesk&) = delete;
    FleetDesk& operator=(const FleetDesk&) = delete;

    /// Takes the vessels of a CSV file into the fleet and tells what came of it in the list's window.
    void Import(const std::string& file);

  private:
    const std::vector<Interface::FleetEntry>* OnAll();
    const Interface::FleetVessel* OnDetails(const std::string& id);
    void* const* OnShowAdd(const Interface::FleetEntry& entry);
    void OnShowPanel(const Interface::PanelShow& show);
    void OnLanguage();
    void OnLogout();
    void OpenForm(const Interface::FleetVessel& vessel);
    void Change(const std::string& id);
    void Remove(const std::string& id);
    void ChooseFile();
    QString Save(Interface::FleetVessel vessel);
    void Refresh();
    FleetWindow& List();
    VesselForm& Form();

    FleetStore store_;
    std::vector<Interface::FleetEntry> entries_;  ///< the last answer
    void* formHandle_ = nullptr;                  ///< the last answer
    QPointer<FleetWindow> list_;                  ///< the main window may delete it first
    QPointer<VesselForm> form_;                   ///< the same
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Fleet
