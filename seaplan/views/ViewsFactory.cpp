// SPDX-License-Identifier: MIT
#include "seaplan/views/ViewsFactory.h"

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/services/ControllerCommands.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"

#include <tarvik/core/TrvKernel.h>

#include <QApplication>
#include <QPointer>

#include <memory>

namespace Tarvik::Seaplan {

namespace {

/// All panels with their windows. The main window owns the windows, so each may be gone before the panels.
class Views {
  public:
    Views(const ViewsDependencies& given, QWidget* mainView)
        : catalog_(given.catalog),
          schedule_(given.voyages, given.store),
          voyageWindow_(new VoyagePanelWindow(mainView)),
          portCallWindow_(new PortCallWindow(mainView, &voyageWindow_->Tree())),
          tree_(*given.store, catalog_, schedule_, voyageWindow_->Tree().Widget()),
          portCalls_(*given.store, schedule_, given.ports, *portCallWindow_),
          panel_({*given.store, catalog_, schedule_, *voyageWindow_, tree_, &portCalls_}) {
        tree_.SetPortCallPanel(&portCalls_);
        portCalls_.SetSavedListener([this](const std::string& vi) {
            tree_.ComputeStatus(vi);
            tree_.ShowStatus(vi);
            panel_.RefreshVoyageRow(vi);
        });
        voyageWindow_->Attach(&panel_, &tree_);
        portCallWindow_->Attach(&portCalls_);
        panel_.RegisterHost();
        portCalls_.RegisterHost();
    }
    ~Views() {
        delete portCallWindow_;
        delete voyageWindow_;
    }
    Views(const Views&) = delete;
    Views& operator=(const Views&) = delete;

    SeaplanViewDlg& Panel() { return panel_; }
    void Restyle() {
        if (voyageWindow_) voyageWindow_->ApplySkin();
        if (portCallWindow_) portCallWindow_->ApplySkin();
    }

  private:
    CatalogControllerCommands catalog_;
    ScheduleControllerCommands schedule_;
    QPointer<VoyagePanelWindow> voyageWindow_;
    QPointer<PortCallWindow> portCallWindow_;
    SeaplanTreeCtrl tree_;
    CPortCallPanelDlg portCalls_;
    SeaplanViewDlg panel_;
};

std::unique_ptr<Views>& views() {
    static std::unique_ptr<Views> made;
    return made;
}

}  // namespace

bool CreateViews(const ViewsDependencies& dependencies) {
    if (views() != nullptr) return true;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return false;
    if (dependencies.catalog == nullptr || dependencies.voyages == nullptr || dependencies.store == nullptr) {
        return false;
    }
    auto* mainView = static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd());
    views() = std::make_unique<Views>(dependencies, mainView);
    return true;
}

SeaplanViewDlg* VoyagePanel() {
    return views() == nullptr ? nullptr : &views()->Panel();
}

void DestroyViews() {
    views().reset();
}

void RestyleViews() {
    if (views() != nullptr) views()->Restyle();
}

}  // namespace Tarvik::Seaplan
