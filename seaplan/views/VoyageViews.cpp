// SPDX-License-Identifier: MIT
#include "seaplan/views/VoyageViews.h"

namespace Tarvik::Seaplan {

VoyageViews::VoyageViews(Parts parts)
    : voyageWindow_(new VoyagePanelWindow(parts.mainView)),
      tree_({parts.store, parts.catalog, parts.voyages, voyageWindow_->Tree().Widget(),
             voyageWindow_->Tree().RenameBox(), voyageWindow_->Vessels(), voyageWindow_->Tree().SortPopup()}),
      portCalls_({[parts] { return new PortCallWindow(parts.mainView); },
                  [this, parts](PortCallWindow& window) { return MakePortCalls(parts, window); }}),
      book_({[parts] { return new BookWindow(parts.mainView); },
             [this, parts](BookWindow& window) { return MakeBook(parts, window); }}),
      panel_({parts.store, parts.catalog, parts.voyages, *voyageWindow_, voyageWindow_->FilterPopup(), tree_,
              [this] { return portCalls_.Made(); }}) {
    tree_.SetPortCallPanel([this] { return &portCalls_.Use(); });
    voyageWindow_->Attach(&panel_, &tree_);
    panel_.ApplyLanguage();
    panel_.RegisterHost();
}

VoyageViews::~VoyageViews() {
    delete voyageWindow_;
}

std::unique_ptr<CPortCallPanelDlg> VoyageViews::MakePortCalls(const Parts& parts, PortCallWindow& window) {
    auto panel = std::make_unique<CPortCallPanelDlg>(
        PortCallDesk::Parts{parts.catalog, parts.voyages, parts.ports, window,
                            [this] { return voyageWindow_ ? OnScreen(voyageWindow_->Tree()) : Rect(); },
                            [this] { return &book_.Use(); }});
    panel->SetSavedListener([this](const std::string& vi) { ShowSaved(vi); });
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

void VoyageViews::Restyle() {
    if (voyageWindow_) {
        voyageWindow_->ApplySkin();
    }
    portCalls_.Restyle();
    book_.Restyle();
}

}  // namespace Tarvik::Seaplan
