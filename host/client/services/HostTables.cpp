// SPDX-License-Identifier: MIT
#include "host/client/services/HostTables.h"

#include <utility>

namespace Tarvik::Client {

HostTables::~HostTables() {
    Interface::LanguageSource::Set(nullptr);
    Interface::ValueDictionary::Set(nullptr);
}

void HostTables::LoadTexts(const std::string& folder, const std::string& language) {
    texts_.Load(folder, language);
    Interface::LanguageSource::Set(&texts_);
}

bool HostTables::LoadPorts(const std::string& databaseFile, std::string& error) {
    std::vector<Port> ports;
    if (!ReadPorts(databaseFile, ports, error)) {
        return false;
    }
    auto dictionary = std::make_unique<PortDictionary>(ports);
    Interface::ValueDictionary::Set(dictionary.get());
    dictionary_ = std::move(dictionary);
    ports_ = std::move(ports);
    return true;
}

}  // namespace Tarvik::Client
