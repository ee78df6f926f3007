// SPDX-License-Identifier: MIT
#include "seaplan/views/VoyageViews.h"

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/VesselCommands.h"

namespace Tarvik::Seaplan {

namespace {

/// A panel beside another window: its left edge on the other's right one, the tops in one line.
Point RightOf(const QWidget* window) {
    const Rect place = window != nullptr ? OnScreen(*window) : Rect();
    return {place.right, place.top};
}

}  // namespace

VoyageViews::VoyageViews(Parts parts)
    : voyageWindow_(new VoyagePanelWindow(parts.mainView)),
      tree_({parts.store, parts.catalog, parts.voyages, voyageWindow_->Tree().Widget(),
             voyageWindow_->Tree().RenameBox(), voyageWindow_->Vessels(), voyageWindow_->Tree().SortPopup()}),
      portCallRemarks_({[parts] { return new RemarkWindow(parts.mainView, "portCallRemarkPanel"); },
                        [this](RemarkWindow& window) {
                            return std::make_unique<CRemarkPanel>(CRemarkPanel::Parts{
                                window, [this] { return RightOf(portCalls_.MadeWindow()); }});
                        }}),
      portCalls_({[parts] { return new PortCallWindow(parts.mainView); },
                  [this, parts](PortCallWindow& window) { return MakePortCalls(parts, window); }}),
      book_({[parts] { return new BookWindow(parts.mainView); },
             [this, parts](BookWindow& window) { return MakeBook(parts, window); }}),
      remarks_({[parts] { return new RemarkWindow(parts.mainView, "remarkPanel"); },
                [this](RemarkWindow& window) {
                    // The rows may have been made anew since the opening, so the mark goes by the object.
                    return std::make_unique<CRemarkPanel>(CRemarkPanel::Parts{
                        window, [this] { return RightOf(voyageWindow_); },
                        [this](RemarkOwnerRow, bool on) { tree_.SetRemarkMark(kNoRow, on); }});
                }}),
      bunkers_({[parts] { return new BunkerWindow(parts.mainView); },
                [this, parts](BunkerWindow& window) { return MakeBunkers(parts.store, window); }}),
      distances_({[parts] { return new KeepTableWindow(parts.mainView); },
                  [this](KeepTableWindow& window) { return MakeDistances(window); }}),
      panel_({parts.store, parts.catalog, parts.voyages, *voyageWindow_, voyageWindow_->FilterPopup(),
              voyageWindow_->Search(), tree_, [this] { return portCalls_.Made(); },
              [this] { HideAfterPortCalls(); }}) {
    tree_.SetPortCallPanel([this] { return &portCalls_.Use(); });
    tree_.Notes().SetRemarks([this](TreeRow row, int type, const std::string& id, const std::string& name) {
        return remarks_.Use().Open(row, type, id, name);
    });
    tree_.Notes().SetConsumption(
        [this](const BunkerFigures& figures, bool editable) { bunkers_.Use().Open(figures, editable); });
    tree_.Context().namesChanged = [this] {
        if (CBunkerDlg* figures = bunkers_.Made()) {
            figures->OnVoyageSet();
        }
    };
    voyageWindow_->Attach(&panel_, &tree_);
    panel_.ApplyLanguage();
    panel_.RegisterHost();
    // Ports come by its services before anybody has asked for a table.
    distances_.Use();
}

VoyageViews::~VoyageViews() {
    delete voyageWindow_;
}

std::unique_ptr<CPortCallPanelDlg> VoyageViews::MakePortCalls(const Parts& parts, PortCallWindow& window) {
    auto panel = std::make_unique<CPortCallPanelDlg>(
        PortCallDesk::Parts{parts.catalog, parts.voyages, parts.ports, window, [this] { return TreePlace(); },
                            [this] { return &book_.Use(); }, [this] { return &portCallRemarks_.Use(); },
                            [this] { distances_.Use().Open(); }});
    panel->SetSavedListener([this](const std::string& vi) { ShowSaved(vi); });
    panel->SetVoyageListener([this] {
        if (CBunkerDlg* bunkers = bunkers_.Made()) {
            bunkers->OnVoyageSet();
        }
    });
    return panel;
}

std::unique_ptr<CPosBookDlg> VoyageViews::MakeBook(const Parts& parts, BookWindow& window) {
    return std::make_unique<CPosBookDlg>(
        BookDesk::Parts{window, [this] { return portCalls_.Made(); },
                        [this, parts] {
                            // Without a main window the book stands over the panel that it belongs to.
                            const QWidget* below = parts.mainView;
                            below = below == nullptr ? portCalls_.MadeWindow() : below;
                            return below == nullptr ? Rect() : OnScreen(*below);
                        }});
}

std::unique_ptr<CPortDistTabDlg> VoyageViews::MakeDistances(KeepTableWindow& window) {
    return std::make_unique<CPortDistTabDlg>(CPortDistTabDlg::Parts{
        window, tree_, [this](bool make) { return make ? &portCalls_.Use() : portCalls_.Made(); },
        [this] {
            const QWidget* panel = portCalls_.MadeWindow();
            return panel == nullptr ? Rect() : OnScreen(*panel);
        }});
}

std::unique_ptr<CBunkerDlg> VoyageViews::MakeBunkers(VoyageStore& store, BunkerWindow& window) {
    return std::make_unique<CBunkerDlg>(CBunkerDlg::Parts{
        window, [this](const BunkerFigures& figures) { return portCalls_.Use().SaveFigures(figures); },
        [this, &store] {
            const std::string& vi = portCalls_.Use().NextVoyage();
            const VoyInfo* voyage = store.FindVoyage(vi);
            // The record of a destroyed voyage stays until the logout.
            return voyage == nullptr || StateOfVoyage(store, vi) == Destroyed ? std::string() : voyage->vn;
        },
        [this] { return TreePlace(); }});
}

void VoyageViews::HideAfterPortCalls() {
    for (PanelPlace<CRemarkPanel, RemarkWindow>* remarks : {&remarks_, &portCallRemarks_}) {
        if (CRemarkPanel* panel = remarks->Made()) {
            panel->OnLogout();
        }
    }
    if (CPortDistTabDlg* panel = distances_.Made()) {
        panel->OnLogout();
    }
}

void VoyageViews::ShowSaved(const std::string& vi) {
    tree_.ComputeStatus(vi);
    tree_.ShowStatus(vi);
    panel_.RefreshVoyageRow(vi);
}

void VoyageViews::OnRouteChosen() {
    if (CPortCallPanelDlg* panel = portCalls_.Made()) {
        panel->Commands().OnRouteChosen();
    }
}

PortCallWindow* VoyageViews::PortCallsWindow() {
    portCalls_.Use();
    return portCalls_.MadeWindow();
}

}  // namespace Tarvik::Seaplan
