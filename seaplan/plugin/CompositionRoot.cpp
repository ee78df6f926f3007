// SPDX-License-Identifier: MIT
#include "seaplan/plugin/CompositionRoot.h"

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/controllers/voycal/VoyCalReply.h"

namespace Tarvik::Seaplan {

CompositionRoot::CompositionRoot(VoyageStore* store)
    : catalogModule_(store),
      catalog_(&catalogModule_, store),
      portCallModule_(store, &ports_),
      voyages_(&portCallModule_, &catalog_, store),
      planService_(&catalog_, &voyages_, store, &ports_) {
    catalog_.SetVoyController(&voyages_);
}

CompositionRoot& CompositionRoot::Instance() {
    static auto* root = new CompositionRoot(VoyageStore::Instance());
    return *root;
}

void CompositionRoot::OfferServices() {
    if (!planVoyage_.IsBound()) {
        planVoyage_ = Interface::Offer(Interface::Bus::PlanVoyage, [this](const PlanRequest& request) {
            return &planService_.Plan(request);
        });
        portsChanged_ = Interface::Subscribe(Interface::Bus::PortsChanged, [this] { ports_.ReadAnew(); });
    }
    Calculator();
}

CVoyCal& CompositionRoot::Calculator() {
    if (!calculator_) {
        calculator_.emplace(ports_, SampleReply());
    }
    return *calculator_;
}

VoyCatalogModule* VoyCatalogModule::Instance() {
    return &CompositionRoot::Instance().CatalogModule();
}

VoyCatalogController* VoyCatalogController::Instance() {
    return &CompositionRoot::Instance().Catalog();
}

VoyPortCallModule* VoyPortCallModule::Instance() {
    return &CompositionRoot::Instance().PortCallModule();
}

CVoyCal* CVoyCal::Instance() {
    return &CompositionRoot::Instance().Calculator();
}

VoyController* VoyController::Instance() {
    return &CompositionRoot::Instance().Voyages();
}

}  // namespace Tarvik::Seaplan
