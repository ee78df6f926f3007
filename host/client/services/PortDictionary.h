// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include <tarvik/interface/ValueDictionary.h>

#include "host/client/services/PortTable.h"

namespace Tarvik::Client {

/// The host's dictionary: under "/points" the ports, id to English name and back. Of two ports of one name
/// the first in order of id answers.
class PortDictionary : public Interface::ValueDictionary {
  public:
    explicit PortDictionary(const std::vector<Port>& ports);
    std::string KeyOfValue(const std::string& path, const std::string& value, int language) const override;
    std::string ValueOfKey(const std::string& path, const std::string& key, int language) const override;

  private:
    std::unordered_map<std::string, std::string> idOfName_;
    std::unordered_map<std::string, std::string> nameOfId_;
};

}  // namespace Tarvik::Client
