// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "seaplan/panels/bunker/CBunkerDlg.h"
#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/tree/RemarkMark.h"
#include "seaplan/panels/tree/RowSelection.h"
#include "seaplan/panels/tree/TreeBuilder.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/vessel/VesselView.h"
#include "seaplan/panels/window/ChoicePopup.h"

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
    /// Fills the panel with a fresh correction from AIS, ready to be recalculated; negative on failure.
    virtual int ShowAisCorrection() = 0;
    /// Time of that correction, `kTimeFormat` in the user's zone.
    virtual void SetCorrectionTime(const std::string& time) = 0;
};

/// Gives the port call panel, which may be made only then. Empty where there is none.
using PortCallSource = std::function<PortCallOpener*()>;
/// The same for the tree's remark panel and for the consumption dialog.
using RemarkSource = std::function<CRemarkPanel*()>;
using BunkerSource = std::function<CBunkerDlg*()>;

/// What the tree stands on; all of it outlives it.
struct TreeCollaborators {
    VoyageStore& store;
    VoyCatalogController& catalog;
    VoyController& voyages;
    TreeWidget& tree;
    TextBox& renameBox;
    VesselView& vesselView;
    ChoicePopup& sortPopup;
    RemarkSource remarkPanel{};
    BunkerSource bunkers{};
};

/// What the commands of the tree work with.
struct TreeParts {
    explicit TreeParts(const TreeCollaborators& given)
        : context(given.store, given.catalog, given.voyages, given.tree),
          status(context),
          builder(context, status),
          chart(context),
          selection(context, status, chart),
          rename(context, given.renameBox, [this](TreeRow row) { return selection.Unfold(row); }),
          remark(context),
          remarkPanel(given.remarkPanel),
          bunkers(given.bunkers) {}

    TreeContext context;
    TreeStatus status;
    TreeBuilder builder;
    VoyagesOnChart chart;
    RowSelection selection;
    TreeRename rename;
    RemarkMark remark;
    RemarkSource remarkPanel;
    BunkerSource bunkers;
    PortCallSource portCalls;

    /// The port call panel, null where there is none.
    PortCallOpener* PortCalls() const { return portCalls ? portCalls() : nullptr; }
    /// Opens the remarks of a row's record. -1 without a panel, or when what is typed there was to be saved
    /// first and could not be.
    int OpenRemarks(TreeRow row, int type, const std::string& id, const std::string& name) {
        CRemarkPanel* panel = remarkPanel ? remarkPanel() : nullptr;
        // Until the panel has left the object before, the mark is that object's.
        if (panel == nullptr || panel->Open(row, type, id, name) != 0) {
            return -1;
        }
        remark.Open(row);
        return 0;
    }
};

/// Commands by the name of their item. A command works on the current rows and answers 0 or the negative
/// number of the failed step.
using TreeCommand = std::function<int()>;
using TreeCommands = std::map<std::string, TreeCommand>;

}  // namespace Tarvik::Seaplan
