// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "seaplan/data/VoyageStore.h"

/// Names and deletion states of what the store holds; nothing here asks the server.
namespace Tarvik::Seaplan {

/// `base` + " - " + the first number from 0 that makes it none of the names.
std::string UniqueName(const std::string& base, const std::map<std::string, int>& names);
/// Fills the two maps from name to state unless they have entries; a filled category map stops both. Of two
/// records with one name the last by id counts; a category without state is left out.
void FillNameMaps(const VoyageStore& store, std::map<std::string, int>& categoryNames,
                  std::map<std::string, int>& voyageNames);
/// Names of the categories in use, by id.
std::vector<std::string> CategoriesInUse(const VoyageStore& store);
/// The state in the first category by id that holds the voyage; in no category it counts as in the bin.
int StateOfVoyage(const VoyageStore& store, const std::string& vi);

}  // namespace Tarvik::Seaplan
