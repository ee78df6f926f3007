// SPDX-License-Identifier: MIT
#include "testsupport/PortDictionary.h"

#include <utility>

namespace Tarvik::TestSupport {

namespace {

std::string Find(const std::map<std::string, std::string>& map, const std::string& path,
                 const std::string& key, int language) {
    const auto found = map.find(key);
    return path == "/points" && language == 1033 && found != map.end() ? found->second : std::string();
}

}  // namespace

PortDictionary::PortDictionary(Ports idsByName) : idsByName_(std::move(idsByName)) {
    for (const auto& [name, id] : idsByName_) {
        namesById_[id] = name;
    }
    Set(this);
}

std::string PortDictionary::KeyOfValue(const std::string& path, const std::string& value,
                                       int language) const {
    return Find(idsByName_, path, value, language);
}

std::string PortDictionary::ValueOfKey(const std::string& path, const std::string& key, int language) const {
    return Find(namesById_, path, key, language);
}

}  // namespace Tarvik::TestSupport
