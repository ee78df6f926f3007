// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <memory>

#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/bunker/CBunkerDlg.h"
#include "seaplan/panels/distances/CPortDistTabDlg.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/distances/KeepTableWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/window/PanelPlace.h"

namespace Tarvik::Seaplan {

class PortDirectory;

/// All panels with their windows, tied to the bus while it lives. The voyage panel is there from the start,
/// each other one when it is first asked for: a panel with a window is one PanelPlace here. The main window
/// owns the windows, so each may be gone before the panels.
class VoyageViews final {
  public:
    struct Parts {
        VoyageStore& store;
        VoyCatalogController& catalog;
        VoyController& voyages;
        PortDirectory& ports;
        QWidget* mainView;  ///< null for windows of their own
    };
    explicit VoyageViews(Parts parts);
    ~VoyageViews();
    VoyageViews(const VoyageViews&) = delete;
    VoyageViews& operator=(const VoyageViews&) = delete;

    SeaplanViewDlg& Panel() { return panel_; }
    SeaplanTreeCtrl& Tree() { return tree_; }
    CPortCallPanelDlg& PortCalls() { return portCalls_.Use(); }
    VoyagePanelWindow* VoyageWindow() { return voyageWindow_; }
    /// Made now when it is not there yet.
    PortCallWindow* PortCallsWindow();
    CPosBookDlg& Book() { return book_.Use(); }
    /// The position book's window, null while nobody has asked for it.
    BookWindow* BookWindowMade() { return book_.MadeWindow(); }
    /// Null until the panel was first asked for: of the tree's remarks, of the port calls', of the
    /// consumption.
    RemarkWindow* RemarksWindow() const { return remarks_.MadeWindow(); }
    /// The dialog in which the port distance table is kept; it is there from the start.
    KeepTableWindow* KeepWindow() const { return distances_.MadeWindow(); }
    RemarkWindow* PortCallRemarksWindow() const { return portCallRemarks_.MadeWindow(); }
    BunkerWindow* FiguresWindow() const { return bunkers_.MadeWindow(); }
    /// Another route was chosen on the chart.
    void OnRouteChosen();
    bool TreeVisible() const { return voyageWindow_ != nullptr && voyageWindow_->isVisible(); }

  private:
    std::unique_ptr<CPortCallPanelDlg> MakePortCalls(const Parts& parts, PortCallWindow& window);
    std::unique_ptr<CPosBookDlg> MakeBook(const Parts& parts, BookWindow& window);
    std::unique_ptr<CPortDistTabDlg> MakeDistances(KeepTableWindow& window);
    std::unique_ptr<CBunkerDlg> MakeBunkers(VoyageStore& store, BunkerWindow& window);
    /// Where the tree stands on the screen; nowhere when its window is gone.
    Rect TreePlace() const { return voyageWindow_ ? OnScreen(voyageWindow_->Tree()) : Rect(); }
    void HideAfterPortCalls();
    void ShowSaved(const std::string& vi);

    QPointer<VoyagePanelWindow> voyageWindow_;
    SeaplanTreeCtrl tree_;
    PanelPlace<CRemarkPanel, RemarkWindow> portCallRemarks_;
    PanelPlace<CPortCallPanelDlg, PortCallWindow> portCalls_;
    PanelPlace<CPosBookDlg, BookWindow> book_;
    PanelPlace<CRemarkPanel, RemarkWindow> remarks_;
    PanelPlace<CBunkerDlg, BunkerWindow> bunkers_;
    PanelPlace<CPortDistTabDlg, KeepTableWindow> distances_;
    SeaplanViewDlg panel_;
};

}  // namespace Tarvik::Seaplan
