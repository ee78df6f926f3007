// SPDX-License-Identifier: MIT
#include "host/client/services/PortDictionary.h"

namespace Tarvik::Client {

namespace {

constexpr const char* kPointsPath = "/points";

std::string Answer(const std::unordered_map<std::string, std::string>& table, const std::string& path,
                   const std::string& key) {
    const auto found = table.find(key);
    return path != kPointsPath || found == table.end() ? std::string() : found->second;
}

}  // namespace

PortDictionary::PortDictionary(const std::vector<Port>& ports) {
    for (const Port& port : ports) {
        idOfName_.emplace(port.name, port.id);
        nameOfId_.emplace(port.id, port.name);
    }
}

std::string PortDictionary::KeyOfValue(const std::string& path, const std::string& value,
                                       int /*language*/) const {
    return Answer(idOfName_, path, value);
}

std::string PortDictionary::ValueOfKey(const std::string& path, const std::string& key,
                                       int /*language*/) const {
    return Answer(nameOfId_, path, key);
}

}  // namespace Tarvik::Client
