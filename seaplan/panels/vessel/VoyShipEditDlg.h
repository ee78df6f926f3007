// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/editors/ListBox.h"
#include "seaplan/panels/editors/TextField.h"
#include "seaplan/panels/vessel/VesselView.h"

namespace Tarvik::Seaplan {

/// Typing or picking the vessel of a voyage.
class VoyShipEditDlg {
  public:
    /// Called with a vessel and whether it is only a typed name.
    using Commit = std::function<void(const Interface::FleetEntry&, bool typedOnly)>;

    explicit VoyShipEditDlg(VesselView& view) : view_(view) {}

    /// Shows the box with this text and the vessels of the fleet that begin so; what is taken goes to
    /// `commit`.
    void Open(const Rect& inTree, const std::string& text, std::vector<Interface::FleetEntry> fleet,
              Commit commit);
    void Hide();
    bool IsVisible() const { return box_.IsOpen(); }
    /// Whether the press that is under way closed the box: a click that it becomes does not open it again.
    bool ClosedByPress() const { return closedByPress_; }

    void OnTyped(const std::string& text);
    /// A key in the box: Enter takes, the arrows walk the list, Escape closes it. False when the box itself
    /// is to act on the key.
    bool OnKey(KeyPress press);
    /// Enter in the box: takes the list's selected row while the list shows, else the typed name.
    void OnEnter(int selectedRow);
    /// A press in the box: of its list it is one beside it.
    void OnBoxPressed() { HideList(); }
    /// A row of the list was clicked.
    void OnChosen(int row);
    /// A left press outside the box and the list: both close at once, and the typed name is taken when the
    /// press has been delivered; an untouched one is left as it is.
    void OnLeft();
    /// The press is over.
    void OnReleased() { closedByPress_ = false; }

    /// Size of a list of so many vessels.
    static VesselListSize SizeOf(std::size_t vessels);

  private:
    static constexpr std::size_t kMostCharacters = 50;

    bool Walk(int by);
    void HideList();
    void Take(const Interface::FleetEntry& vessel, bool typedOnly);
    /// The vessel that was typed; nothing for an untouched or a blank name.
    std::optional<Interface::FleetEntry> Typed() const;

    VesselView& view_;
    Commit commit_;
    std::vector<Interface::FleetEntry> fleet_;
    std::vector<Interface::FleetEntry> shown_;
    TextField box_{kMostCharacters};
    ListBox list_;
    bool closedByPress_ = false;
};

}  // namespace Tarvik::Seaplan
