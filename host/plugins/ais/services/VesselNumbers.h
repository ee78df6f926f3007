// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace Tarvik::Ais {

/// Which MMSI a vessel of the fleet has. A feed knows vessels by that number alone, the voyage plug-in by the
/// fleet's id and, once it has learnt it, by the number too.
class VesselNumbers {
  public:
    /// The number of the vessel `id`: the one given when it is at least 1, else the one that was given for
    /// this id before, else what the fleet says. 0 when nobody knows it.
    std::uint32_t Of(const std::string& id, std::int32_t given);
    /// The same of a text "id|number".
    std::uint32_t OfText(const std::string& text, std::string& id);

  private:
    std::map<std::string, std::uint32_t> learnt_;
};

}  // namespace Tarvik::Ais
