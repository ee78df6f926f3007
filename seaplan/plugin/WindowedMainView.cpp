// SPDX-License-Identifier: MIT
#include "seaplan/plugin/CompositionRoot.h"
#include "seaplan/plugin/MainViewFactory.h"
#include "seaplan/views/ViewsFactory.h"

namespace Tarvik::Seaplan {

bool CreateMainView() {
    CompositionRoot& root = CompositionRoot::Instance();
    return CreateViews(
        {&root.Catalog(), &root.Voyages(), VoyageStore::Instance(), PortDictionary::FromDatabase()});
}

}  // namespace Tarvik::Seaplan
