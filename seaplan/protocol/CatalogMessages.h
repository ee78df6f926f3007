// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/util/Jsona.h>

#include "seaplan/data/VoyageStore.h"

/// Request texts of categories and voyages, in which values go as they stand, nothing escaped; and the list
/// of both.
namespace Tarvik::Seaplan {

std::string LoadAllText(const std::string& user);
std::string CreateCategoryText(const std::string& name);
std::string CategoryStateText(const std::string& ci, int type);
std::string RenameCategoryText(const std::string& ci, const std::string& name);
std::string CreateVoyageText(const std::string& ci, const std::string& name);
std::string RenameVoyageText(const std::string& vi, const std::string& name);
std::string VoyageStateText(const std::string& vi, int type);
std::string ChangeVesselText(const std::string& vi, const std::string& vsi, const std::string& vsn,
                             int vsmsi);
std::string RouteDisplayText(const std::string& vi, bool on);
std::string AisTracingText(const std::string& vi, bool on);
std::string AddAisModTimeText(const std::string& vi, const std::string& serverTime);
/// {vi:"…"}, the text of every command that reads something of one voyage.
std::string VoyageIdText(const std::string& vi);

/// Takes over every category and voyage of the reply that lists a user's data. A category without id is left
/// out with its voyages, a voyage without id alone.
void ReadCatalog(const Util::Jsona& reply, VoyageStore& store);
/// The voyage of one element; its id is empty when the element has none.
VoyInfo ReadVoyage(const Util::Jsona& element);

}  // namespace Tarvik::Seaplan
