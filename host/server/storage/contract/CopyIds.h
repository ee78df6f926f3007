// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>

#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// The ids of one owner's copied records and those that they get where they are added.
class CopyIds {
  public:
    void PutCategory(const std::string& before, std::string after) { categories_[before] = std::move(after); }
    void PutVoyage(const std::string& before, std::string after) { voyages_[before] = std::move(after); }
    /// Whether the object is one of these categories and voyages, or a port call of one.
    bool Knows(const RemarkObject& object) const { return LengthOfId(object) > 0; }
    /// The object where it is added; the same for one that is not known here.
    RemarkObject Renamed(const RemarkObject& object) const;

  private:
    /// How much of the object's text is an id; 0 when none is known.
    std::size_t LengthOfId(const RemarkObject& object) const;

    std::unordered_map<std::string, std::string> categories_;
    std::unordered_map<std::string, std::string> voyages_;
};

}  // namespace Tarvik::Server
