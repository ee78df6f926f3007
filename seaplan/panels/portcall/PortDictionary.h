// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

namespace Tarvik::Seaplan {

/// What the port call table knows of ports.
class PortDictionary {
  public:
    /// `names` in any order; `byLocal` port names by local name; `samePort` keys "id-id" of ids that are one
    /// place.
    PortDictionary(std::vector<std::string> names, std::map<std::string, std::string> byLocal,
                   std::map<std::string, std::string> samePort);
    /// From the local data base; what cannot be read stays empty.
    static PortDictionary FromDatabase();

    /// Name for a typed text: a text that begins with a byte above 127 is a local name. Empty when a local
    /// name is unknown. Any other text that differs from a port's name by case only gives that name, and
    /// stands as it is otherwise.
    std::string NameOf(const std::string& typed) const;
    /// Whether a port has this name; without any names at hand every name counts as known.
    bool Knows(const std::string& name) const;
    /// Names that begin with `typed`, in any case, in order of name, at most `limit`; local names give their
    /// port's name.
    std::vector<std::string> Match(const std::string& typed, std::size_t limit) const;
    bool IsSamePlace(const std::string& idA, const std::string& idB) const;

  private:
    std::vector<std::pair<std::string, std::string>> names_;  ///< folded name and name, in order
    std::map<std::string, std::string> byLocal_;
    std::map<std::string, std::string> samePort_;
};

}  // namespace Tarvik::Seaplan
