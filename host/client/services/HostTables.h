// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/client/services/LanguageFiles.h"
#include "host/client/services/PortDictionary.h"

namespace Tarvik::Client {

/// The texts and ports that plug-ins read through the SDK; in force there from their loading to the end of
/// this.
class HostTables {
  public:
    HostTables() = default;
    ~HostTables();
    HostTables(const HostTables&) = delete;
    HostTables& operator=(const HostTables&) = delete;

    /// Takes the texts of a language into use; what is wrong with the files stands among their complaints.
    void LoadTexts(const std::string& folder, const std::string& language);
    /// Takes the ports of a data base into use. False with one line that says what to do; those in use stay.
    bool LoadPorts(const std::string& databaseFile, std::string& error);

    const LanguageFiles& Texts() const { return texts_; }
    const std::vector<Port>& Ports() const { return ports_; }

  private:
    LanguageFiles texts_;
    std::vector<Port> ports_;
    std::unique_ptr<PortDictionary> dictionary_;
};

}  // namespace Tarvik::Client
