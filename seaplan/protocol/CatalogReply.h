// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/util/Jsona.h>

#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

/// Takes over every category and voyage of the reply that lists a user's data. A category without id is left
/// out with its voyages, a voyage without id alone.
void ReadCatalog(const Util::Jsona& reply, VoyageStore& store);
/// The voyage of one element; its id is empty when the element has none.
VoyInfo ReadVoyage(const Util::Jsona& element);

}  // namespace Tarvik::Seaplan
