// SPDX-License-Identifier: MIT
#include "seaplan/views/ViewsFactory.h"

#include <QApplication>
#include <QWidget>
#include <memory>

#include <tarvik/core/TrvKernel.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/views/VoyageViews.h"

namespace Tarvik::Seaplan {

namespace {

/// The windows over the real controllers.
class ControlledViews {
  public:
    ControlledViews(const ViewsDependencies& given, QWidget* mainView)
        : voyages_(given.voyages),
          views_({*given.store, *given.catalog, *given.voyages, *given.ports, mainView}) {
        voyages_->SetTreeVisible([this] { return views_.TreeVisible(); });
        voyages_->Module().SetRouteListener([this] { views_.OnRouteChosen(); });
        // Windows must be gone before the application object is, and panels with their windows.
        qAddPostRoutine(DestroyViews);
        if (mainView != nullptr) {
            QObject::connect(mainView, &QObject::destroyed, [] { DestroyViews(); });
        }
    }
    ~ControlledViews() {
        qRemovePostRoutine(DestroyViews);
        voyages_->SetTreeVisible({});
        voyages_->Module().SetRouteListener({});
    }
    ControlledViews(const ControlledViews&) = delete;
    ControlledViews& operator=(const ControlledViews&) = delete;

    VoyageViews& Views() { return views_; }

  private:
    VoyController* voyages_;
    VoyageViews views_;
};

std::unique_ptr<ControlledViews>& Made() {
    static std::unique_ptr<ControlledViews> views;
    return views;
}

}  // namespace

bool CreateViews(const ViewsDependencies& dependencies) {
    if (Made() != nullptr) {
        return true;
    }
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return false;
    }
    if (dependencies.catalog == nullptr || dependencies.voyages == nullptr || dependencies.store == nullptr ||
        dependencies.ports == nullptr) {
        return false;
    }
    auto* mainView = static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd());
    Made() = std::make_unique<ControlledViews>(dependencies, mainView);
    return true;
}

SeaplanViewDlg* VoyagePanel() {
    return Made() == nullptr ? nullptr : &Made()->Views().Panel();
}

void DestroyViews() {
    Made().reset();
}

}  // namespace Tarvik::Seaplan
