// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace Tarvik::Seaplan {

class BookWindow;
class BunkerWindow;
class CPortCallPanelDlg;
class CPosBookDlg;
class KeepTableWindow;
class PortCallWindow;
class PortDirectory;
class RemarkWindow;
class SeaplanTreeCtrl;
class SeaplanViewDlg;
class VoyCatalogController;
class VoyController;
class VoyagePanelWindow;
class VoyageStore;

/// All panels with their windows, tied to the bus while it lives. The voyage panel is there from the start,
/// each other one when it is first asked for: a panel with a window is one PanelPlace in the source. The main
/// window owns the windows, so each may be gone before the panels. Who uses a panel or a window includes its
/// header.
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

    SeaplanViewDlg& Panel();
    SeaplanTreeCtrl& Tree();
    CPortCallPanelDlg& PortCalls();
    VoyagePanelWindow* VoyageWindow();
    /// Made now when it is not there yet.
    PortCallWindow* PortCallsWindow();
    CPosBookDlg& Book();
    /// The position book's window, null while nobody has asked for it.
    BookWindow* BookWindowMade();
    /// Null until the panel was first asked for: of the tree's remarks, of the port calls', of the
    /// consumption.
    RemarkWindow* RemarksWindow() const;
    /// The dialog in which the port distance table is kept; it is there from the start.
    KeepTableWindow* KeepWindow() const;
    RemarkWindow* PortCallRemarksWindow() const;
    BunkerWindow* FiguresWindow() const;
    /// Another route was chosen on the chart.
    void OnRouteChosen();
    bool TreeVisible() const;

  private:
    class Places;

    std::unique_ptr<Places> places_;
};

}  // namespace Tarvik::Seaplan
