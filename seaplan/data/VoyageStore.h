// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "seaplan/data/VoyInfo.h"

/// The working copy of a user's data, and the names and deletion states in it; nothing here asks the server.
namespace Tarvik::Seaplan {

/// Working copy of the logged-in user's data. Keys are id texts in byte order, "1000010" before "999". Record
/// addresses are stable while an entry is in its map: the tree keeps pointers to them.
class VoyageStore {
  public:
    /// The plug-in's store, made on first use and kept until the process ends.
    static VoyageStore* Instance();

    std::map<std::string, VoyCategory> categories;
    std::map<std::string, VoyInfo> voyages;
    std::map<std::string, int> categoryStates;                          ///< DeletionState by ci
    std::map<std::string, std::map<std::string, int>> categoryVoyages;  ///< DeletionState by ci and vi

    /// The voyage of this id, null when unknown.
    VoyInfo* FindVoyage(const std::string& vi);
    /// Empties all four maps.
    void Clear();
};

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
