// SPDX-License-Identifier: MIT
#include "seaplan/views/VoyageViews.h"

namespace Tarvik::Seaplan {

VoyageViews::VoyageViews(Parts parts)
    : voyageWindow_(new VoyagePanelWindow(parts.mainView)),
      portCallWindow_(new PortCallWindow(parts.mainView)),
      tree_({parts.store, parts.catalog, parts.voyages, voyageWindow_->Tree().Widget(),
             voyageWindow_->Tree().RenameBox(), voyageWindow_->Vessels(), voyageWindow_->Tree().SortPopup()}),
      portCalls_({parts.store, parts.catalog, parts.voyages, parts.ports, *portCallWindow_,
                  [this] { return voyageWindow_ ? OnScreen(voyageWindow_->Tree()) : Rect(); }}),
      panel_({parts.store, parts.catalog, parts.voyages, *voyageWindow_, voyageWindow_->FilterPopup(), tree_,
              &portCalls_}) {
    tree_.SetPortCallPanel(&portCalls_);
    portCalls_.SetSavedListener([this](const std::string& vi) { ShowSaved(vi); });
    voyageWindow_->Attach(&panel_, &tree_);
    portCallWindow_->Attach(&portCalls_);
    panel_.ApplyLanguage();
    portCalls_.ApplyLanguage();
    panel_.RegisterHost();
    portCalls_.RegisterHost();
}

VoyageViews::~VoyageViews() {
    delete portCallWindow_;
    delete voyageWindow_;
}

void VoyageViews::ShowSaved(const std::string& vi) {
    tree_.ComputeStatus(vi);
    tree_.ShowStatus(vi);
    panel_.RefreshVoyageRow(vi);
}

void VoyageViews::Restyle() {
    if (voyageWindow_) {
        voyageWindow_->ApplySkin();
    }
    if (portCallWindow_) {
        portCallWindow_->ApplySkin();
    }
}

}  // namespace Tarvik::Seaplan
