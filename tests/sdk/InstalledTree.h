// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/client/tests/TemporaryFolder.h"
#include "tests/gui/ChildProcess.h"

namespace Tarvik::Sdk {

/// The whole build installed into a folder of the test's own, with the sample plug-in built against it there.
class InstalledTree {
  public:
    /// Installs, then configures, builds and installs the sample; throws with what the failed step printed.
    InstalledTree();

    /// A file below the prefix, as "bin/tarvik".
    std::string File(const std::string& name) const { return folder_.Path("prefix/" + name); }
    /// Where the client looks for plug-ins.
    std::string Plugins() const { return File(INSTALLED_PLUGINS); }
    /// A file of the person's data.
    std::string Data(const std::string& name) const { return folder_.Path("data/" + name); }
    /// Any other file of the folder.
    std::string Other(const std::string& name) const { return folder_.Path(name); }

    /// Runs the installed client with the folder's own data.
    Programs::Ended RunClient(const std::vector<std::string>& words) const;

  private:
    void Do(const std::vector<std::string>& words) const;

    Client::TemporaryFolder folder_;
};

}  // namespace Tarvik::Sdk
