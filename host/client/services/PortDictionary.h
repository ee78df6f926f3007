// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include <tarvik/interface/ValueDictionary.h>

namespace Tarvik::Client {

/// A port of trvdb.db; x and y are longitude and latitude in degrees.
struct Port {
    std::string id;
    std::string name;
    std::string nameCn;
    std::string unlocode;  ///< empty when the table has none
    double x = 0;
    double y = 0;
};

/// Reads all ports of the data base in order of their names. False with one line that says what to do.
bool ReadPorts(const std::string& databaseFile, std::vector<Port>& ports, std::string& error);

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
