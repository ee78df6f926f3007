// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <tarvik/bus/BindingList.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/voycal/CVoyCal.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/plugin/PlanService.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace Tarvik::Seaplan {

/// Makes the plug-in's objects and ties them together. `X::Instance()` answers from here.
class CompositionRoot {
  public:
    /// Made on first use and kept until the process ends.
    static CompositionRoot& Instance();
    explicit CompositionRoot(VoyageStore* store);

    VoyCatalogModule& CatalogModule() { return catalogModule_; }
    VoyCatalogController& Catalog() { return catalog_; }
    VoyPortCallModule& PortCallModule() { return portCallModule_; }
    VoyController& Voyages() { return voyages_; }
    PortDirectory& Ports() { return ports_; }
    /// The route calculator, made and bound on first use.
    CVoyCal& Calculator();
    /// Offers what works without a window; a second call changes nothing.
    void OfferServices();

  private:
    PortDirectory ports_;
    VoyCatalogModule catalogModule_;
    VoyCatalogController catalog_;
    VoyPortCallModule portCallModule_;
    VoyController voyages_;
    PlanService planService_;
    std::optional<CVoyCal> calculator_;
    Interface::Binding planVoyage_;
    Interface::Binding portsChanged_;
};

}  // namespace Tarvik::Seaplan
