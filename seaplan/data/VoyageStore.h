// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "seaplan/data/VoyInfo.h"

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

}  // namespace Tarvik::Seaplan
