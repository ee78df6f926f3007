// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/panels/editors/EditWords.h"
#include "seaplan/panels/portcall/PortCallParts.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/panels/portcall/TableHistory.h"
#include "seaplan/panels/window/Boxes.h"

namespace Tarvik::Seaplan {

/// What the parts of the port call panel share: the sheet, the controllers behind it and the window before
/// it. A part changes the sheet as it likes; the window is told once, when the report that it began with is
/// over, and before whatever a person looks at meanwhile: a box, a busy mark, an editor.
class PortCallDesk {
  public:
    using Parts = PortCallParts;
    explicit PortCallDesk(Parts parts)
        : p_(std::move(parts)), boxes_(p_.view), history_(sheet_, p_.voyages, p_.ports) {}

    PortCallSheet& Sheet() { return sheet_; }
    const PortCallSheet& Sheet() const { return sheet_; }
    VoyCatalogController& Catalog() const { return p_.catalog; }
    VoyController& Voyages() const { return p_.voyages; }
    PortDirectory& Ports() const { return p_.ports; }
    PortCallView& View() const { return p_.view; }
    /// What it was made with; each function there may be empty.
    const Parts& Given() const { return p_; }
    /// The edits of the table on show.
    TableHistory& History() { return history_; }

    /// Brings the window up to date; nothing is told that it shows already.
    void Show();
    /// Called after the window was told of another table or state.
    void SetFollower(std::function<void()> follower) { follower_ = std::move(follower); }
    /// Show when the outermost report is over.
    class Report {
      public:
        explicit Report(PortCallDesk& desk) : desk_(desk) { ++desk_.reports_; }
        ~Report();
        Report(const Report&) = delete;
        Report& operator=(const Report&) = delete;

      private:
        PortCallDesk& desk_;
    };
    /// Shows that something goes on, while it lives. Not to be held over a question to the person.
    class Busy {
      public:
        explicit Busy(PortCallDesk& desk);
        ~Busy() { view_.SetBusy(false); }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

      private:
        PortCallView& view_;
    };

    /// Called with the id of a voyage after its schedule was saved.
    void SetSavedListener(std::function<void(const std::string&)> listener) { saved_ = std::move(listener); }
    void TellSaved(const std::string& vi) const;

    /// An empty sheet for the voyage on show, with the caption and zone in force.
    void ResetSheet();
    /// Caption and calculate button in the language in force.
    void ShowTexts();
    /// A fresh correction waits for its calculation, or none does.
    void SetCorrectionPending(bool pending);
    /// Whether the voyage on show was corrected from its vessel's positions.
    bool IsCorrected() const;
    /// Shows rows of knots, nautical miles and hours and takes the table for changed. 0 or -1.
    int ShowChangedRows(const PortCallRows& standard);
    /// The same over the schedule of such rows, which keep their ids.
    int Recompute(const PortCallRows& standard);

    /// The window cannot be used while the position book is open.
    void SetBookOpen(bool open);
    /// The sheet's cause is that of the controllers' last failure.
    void SetCauseOfFault();
    /// What the changes in the table are, as a question about losing them tells it.
    std::string LossWords() const;
    /// The zone in which times are read from the next filling on; without one the host is asked for it.
    void SetZone(std::string zone) { zone_ = std::move(zone); }
    /// The numbered rows that the person has chosen, in order, with the one in front.
    std::vector<int> ChosenRows(int front) const;
    /// Another line about the rows on show.
    void SetNote(PortCallNote note);

    /// Boxes to the person, over a window that is up to date.
    Boxes& ToPerson();

  private:
    Parts p_;
    Boxes boxes_;
    std::function<void(const std::string&)> saved_;
    std::function<void()> follower_;
    std::string zone_;
    PortCallSheet sheet_;
    TableHistory history_;
    /// What the window was told last.
    struct Shown {
        PortCallTable table;
        PortCallState state;
        UndoTexts edits;
    };
    std::optional<Shown> shown_;
    bool bookOpen_ = false;
    int reports_ = 0;  ///< reports under way, one inside the other
};

/// Shows the panel's window at its place beside the tree, the keyboard on the first port.
void ShowBesideTree(const PortCallDesk& desk);

}  // namespace Tarvik::Seaplan
