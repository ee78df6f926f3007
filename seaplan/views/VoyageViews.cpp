// SPDX-License-Identifier: MIT
#include "seaplan/views/VoyageViews.h"

#include <QApplication>
#include <QEvent>

#include <tarvik/skin/Palette.h>

namespace Tarvik::Seaplan {

namespace {

/// Where the client leaves the name of its theme, before it changes the palette.
constexpr const char* kThemeProperty = "tarvik.theme";

void TakeClientTheme() {
    const QString name = qApp->property(kThemeProperty).toString();
    if (!name.isEmpty()) {
        SetTheme(ThemeNamed(name));
    }
}

}  // namespace

VoyageViews::VoyageViews(Parts parts)
    : voyageWindow_((TakeClientTheme(), new VoyagePanelWindow(parts.mainView))),
      portCallWindow_(new PortCallWindow(parts.mainView, &voyageWindow_->Tree())),
      tree_(parts.store, parts.catalog, parts.schedule, voyageWindow_->Tree().Widget()),
      portCalls_(parts.store, parts.schedule, std::move(parts.ports), *portCallWindow_),
      panel_({parts.store, parts.catalog, parts.schedule, *voyageWindow_, tree_, &portCalls_}) {
    tree_.SetPortCallPanel(&portCalls_);
    tree_.SetVesselView(&voyageWindow_->Vessels());
    portCalls_.SetSavedListener([this](const std::string& vi) { ShowSaved(vi); });
    voyageWindow_->Attach(&panel_, &tree_);
    portCallWindow_->Attach(&portCalls_);
    panel_.RegisterHost();
    portCalls_.RegisterHost();
    qApp->installEventFilter(this);
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

bool VoyageViews::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
        TakeClientTheme();
        Restyle();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace Tarvik::Seaplan
