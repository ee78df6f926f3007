// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include <tarvik/interface/ValueDictionary.h>

namespace Tarvik::TestSupport {

/// The host's port names as the test gives them. In force from its making to its end.
class PortDictionary final : public Interface::ValueDictionary {
  public:
    using Ports = std::map<std::string, std::string>;

    explicit PortDictionary(Ports idsByName);
    ~PortDictionary() override { Set(nullptr); }
    PortDictionary(const PortDictionary&) = delete;
    PortDictionary& operator=(const PortDictionary&) = delete;

    std::string KeyOfValue(const std::string& path, const std::string& value, int language) const override;
    std::string ValueOfKey(const std::string& path, const std::string& key, int language) const override;

  private:
    std::map<std::string, std::string> idsByName_;
    std::map<std::string, std::string> namesById_;
};

}  // namespace Tarvik::TestSupport
