// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"

namespace Tarvik::Seaplan {

/// All panels with their windows, tied to the bus while it lives. The main window owns the windows, so each
/// may be gone before the panels.
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
    CPortCallPanelDlg& PortCalls() { return portCalls_; }
    VoyagePanelWindow* VoyageWindow() { return voyageWindow_; }
    PortCallWindow* PortCallsWindow() { return portCallWindow_; }
    bool TreeVisible() const { return voyageWindow_ != nullptr && voyageWindow_->isVisible(); }
    /// Draws every window anew in the theme in force.
    void Restyle();

  private:
    void ShowSaved(const std::string& vi);

    QPointer<VoyagePanelWindow> voyageWindow_;
    QPointer<PortCallWindow> portCallWindow_;
    SeaplanTreeCtrl tree_;
    CPortCallPanelDlg portCalls_;
    SeaplanViewDlg panel_;
};

}  // namespace Tarvik::Seaplan
