// SPDX-License-Identifier: MIT
#include "host/client/services/HostTables.h"

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
    if (!ReadPorts(databaseFile, ports_, error)) {
        return false;
    }
    dictionary_ = std::make_unique<PortDictionary>(ports_);
    Interface::ValueDictionary::Set(dictionary_.get());
    return true;
}

}  // namespace Tarvik::Client
