// SPDX-License-Identifier: MIT
#include "seaplan/views/VoyageViews.h"

#include <QPointer>

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/bunker/CBunkerDlg.h"
#include "seaplan/panels/distances/CPortDistTabDlg.h"
#include "seaplan/panels/mainview/KeysFromAnywhere.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/distances/KeepTableWindow.h"
#include "seaplan/views/editors/KeysOfWindows.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/window/PanelPlace.h"

namespace Tarvik::Seaplan {

namespace {

/// A panel beside another window: its left edge on the other's right one, the tops in one line.
Point RightOf(const QWidget* window) {
    const Rect place = window != nullptr ? OnScreen(*window) : Rect();
    return {place.right, place.top};
}

}  // namespace

/// The panels and windows; a later one may ask for an earlier one, and goes before it.
class VoyageViews::Places {
  public:
    explicit Places(const Parts& parts);
    ~Places();
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;

    QPointer<VoyagePanelWindow> voyageWindow;
    SeaplanTreeCtrl tree;
    PanelPlace<CRemarkPanel, RemarkWindow> portCallRemarks;
    PanelPlace<CPortCallPanelDlg, PortCallWindow> portCalls;
    PanelPlace<CPosBookDlg, BookWindow> book;
    PanelPlace<CRemarkPanel, RemarkWindow> remarks;
    PanelPlace<CBunkerDlg, BunkerWindow> bunkers;
    PanelPlace<CPortDistTabDlg, KeepTableWindow> distances;
    SeaplanViewDlg voyagePanel;
    KeysOfWindows keys;

  private:
    std::unique_ptr<CPortCallPanelDlg> MakePortCalls(const Parts& parts, PortCallWindow& window);
    std::unique_ptr<CPosBookDlg> MakeBook(const Parts& parts, BookWindow& window);
    std::unique_ptr<CPortDistTabDlg> MakeDistances(KeepTableWindow& window);
    std::unique_ptr<CBunkerDlg> MakeBunkers(VoyageStore& store, BunkerWindow& window);
    /// Where the tree stands on the screen; nowhere when its window is gone.
    Rect TreePlace() const { return voyageWindow ? OnScreen(voyageWindow->Tree()) : Rect(); }
    PanelsInSight InSight();
    void HideAfterPortCalls();
    void ShowSaved(const std::string& vi);
};

VoyageViews::Places::Places(const Parts& parts)
    : voyageWindow(new VoyagePanelWindow(parts.mainView)),
      tree({parts.store, parts.catalog, parts.voyages, voyageWindow->Tree().Widget(),
            voyageWindow->Tree().RenameBox(), voyageWindow->Vessels(), voyageWindow->Tree().SortPopup()}),
      portCallRemarks({[parts] { return new RemarkWindow(parts.mainView, "portCallRemarkPanel"); },
                       [this](RemarkWindow& window) {
                           return std::make_unique<CRemarkPanel>(CRemarkPanel::Parts{
                               window, [this] { return RightOf(portCalls.MadeWindow()); }});
                       }}),
      portCalls({[parts] { return new PortCallWindow(parts.mainView); },
                 [this, parts](PortCallWindow& window) { return MakePortCalls(parts, window); }}),
      book({[parts] { return new BookWindow(parts.mainView); },
            [this, parts](BookWindow& window) { return MakeBook(parts, window); }}),
      remarks({[parts] { return new RemarkWindow(parts.mainView, "remarkPanel"); },
               [this](RemarkWindow& window) {
                   // The rows may have been made anew since the opening, so the mark goes by the object.
                   return std::make_unique<CRemarkPanel>(CRemarkPanel::Parts{
                       window, [this] { return RightOf(voyageWindow); },
                       [this](RemarkOwnerRow, bool on) { tree.SetRemarkMark(kNoRow, on); }});
               }}),
      bunkers({[parts] { return new BunkerWindow(parts.mainView); },
               [this, parts](BunkerWindow& window) { return MakeBunkers(parts.store, window); }}),
      distances({[parts] { return new KeepTableWindow(parts.mainView); },
                 [this](KeepTableWindow& window) { return MakeDistances(window); }}),
      voyagePanel({parts.store, parts.catalog, parts.voyages, *voyageWindow, voyageWindow->FilterPopup(),
                   voyageWindow->Search(), tree, [this] { return portCalls.Made(); },
                   [this] { HideAfterPortCalls(); }}),
      keys({parts.mainView == nullptr ? nullptr : parts.mainView->window(), voyageWindow.data()},
           [this](KeyPress press) { return OnKeyFromAnywhere(press, InSight()); }) {
    tree.SetPortCallPanel([this] { return &portCalls.Use(); });
    tree.Notes().SetRemarks([this](TreeRow row, int type, const std::string& id, const std::string& name) {
        return remarks.Use().Open(row, type, id, name);
    });
    tree.Notes().SetConsumption(
        [this](const BunkerFigures& figures, bool editable) { bunkers.Use().Open(figures, editable); });
    tree.Context().namesChanged = [this] {
        if (CBunkerDlg* figures = bunkers.Made()) {
            figures->OnVoyageSet();
        }
    };
    voyageWindow->Attach(&voyagePanel, &tree);
    voyagePanel.ApplyLanguage();
    voyagePanel.RegisterHost();
    // Ports come by its services before anybody has asked for a table.
    distances.Use();
}

VoyageViews::Places::~Places() {
    delete voyageWindow;
}

PanelsInSight VoyageViews::Places::InSight() {
    const auto isSeen = [](const QWidget* window) { return window != nullptr && window->isVisible(); };
    return {isSeen(portCalls.MadeWindow()) ? portCalls.Made() : nullptr,
            isSeen(book.MadeWindow()) ? book.Made() : nullptr};
}

std::unique_ptr<CPortCallPanelDlg> VoyageViews::Places::MakePortCalls(const Parts& parts,
                                                                      PortCallWindow& window) {
    auto panel = std::make_unique<CPortCallPanelDlg>(
        PortCallDesk::Parts{parts.catalog, parts.voyages, parts.ports, window, [this] { return TreePlace(); },
                            [this] { return &book.Use(); }, [this] { return &portCallRemarks.Use(); },
                            [this] { distances.Use().Open(); }});
    panel->SetSavedListener([this](const std::string& vi) { ShowSaved(vi); });
    panel->SetVoyageListener([this] {
        if (CBunkerDlg* figures = bunkers.Made()) {
            figures->OnVoyageSet();
        }
    });
    return panel;
}

std::unique_ptr<CPosBookDlg> VoyageViews::Places::MakeBook(const Parts& parts, BookWindow& window) {
    return std::make_unique<CPosBookDlg>(
        BookDesk::Parts{window, [this] { return portCalls.Made(); },
                        [this, parts] {
                            // Without a main window the book stands over the panel that it belongs to.
                            const QWidget* below = parts.mainView;
                            below = below == nullptr ? portCalls.MadeWindow() : below;
                            return below == nullptr ? Rect() : OnScreen(*below);
                        }});
}

std::unique_ptr<CPortDistTabDlg> VoyageViews::Places::MakeDistances(KeepTableWindow& window) {
    return std::make_unique<CPortDistTabDlg>(CPortDistTabDlg::Parts{
        window, tree, [this](bool make) { return make ? &portCalls.Use() : portCalls.Made(); },
        [this] {
            const QWidget* panel = portCalls.MadeWindow();
            return panel == nullptr ? Rect() : OnScreen(*panel);
        }});
}

std::unique_ptr<CBunkerDlg> VoyageViews::Places::MakeBunkers(VoyageStore& store, BunkerWindow& window) {
    return std::make_unique<CBunkerDlg>(CBunkerDlg::Parts{
        window, [this](const BunkerFigures& figures) { return portCalls.Use().SaveFigures(figures); },
        [this, &store] {
            const std::string& vi = portCalls.Use().NextVoyage();
            const VoyInfo* voyage = store.FindVoyage(vi);
            // The record of a destroyed voyage stays until the logout.
            return voyage == nullptr || StateOfVoyage(store, vi) == Destroyed ? std::string() : voyage->vn;
        },
        [this] { return TreePlace(); }});
}

void VoyageViews::Places::HideAfterPortCalls() {
    for (PanelPlace<CRemarkPanel, RemarkWindow>* notes : {&remarks, &portCallRemarks}) {
        if (CRemarkPanel* panel = notes->Made()) {
            panel->OnLogout();
        }
    }
    if (CPortDistTabDlg* panel = distances.Made()) {
        panel->OnLogout();
    }
}

void VoyageViews::Places::ShowSaved(const std::string& vi) {
    tree.ComputeStatus(vi);
    tree.ShowStatus(vi);
    voyagePanel.RefreshVoyageRow(vi);
}

VoyageViews::VoyageViews(Parts parts) : places_(std::make_unique<Places>(parts)) {}

VoyageViews::~VoyageViews() = default;

SeaplanViewDlg& VoyageViews::Panel() {
    return places_->voyagePanel;
}

SeaplanTreeCtrl& VoyageViews::Tree() {
    return places_->tree;
}

CPortCallPanelDlg& VoyageViews::PortCalls() {
    return places_->portCalls.Use();
}

VoyagePanelWindow* VoyageViews::VoyageWindow() {
    return places_->voyageWindow;
}

PortCallWindow* VoyageViews::PortCallsWindow() {
    places_->portCalls.Use();
    return places_->portCalls.MadeWindow();
}

CPosBookDlg& VoyageViews::Book() {
    return places_->book.Use();
}

BookWindow* VoyageViews::BookWindowMade() {
    return places_->book.MadeWindow();
}

RemarkWindow* VoyageViews::RemarksWindow() const {
    return places_->remarks.MadeWindow();
}

KeepTableWindow* VoyageViews::KeepWindow() const {
    return places_->distances.MadeWindow();
}

RemarkWindow* VoyageViews::PortCallRemarksWindow() const {
    return places_->portCallRemarks.MadeWindow();
}

BunkerWindow* VoyageViews::FiguresWindow() const {
    return places_->bunkers.MadeWindow();
}

void VoyageViews::OnRouteChosen() {
    if (CPortCallPanelDlg* panel = places_->portCalls.Made()) {
        panel->Commands().OnRouteChosen();
    }
}

bool VoyageViews::TreeVisible() const {
    return places_->voyageWindow != nullptr && places_->voyageWindow->isVisible();
}

}  // namespace Tarvik::Seaplan
