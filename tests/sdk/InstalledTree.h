// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/gui/ChildProcess.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Sdk {

/// The whole build installed into a folder of the test's own, with the sample plug-in built against it there.
class InstalledTree {
  public:
    /// Installs, then configures, builds and installs the sample; throws with what the failed step printed.
    InstalledTree();

    /// A file below the prefix, as "bin/tarvik".
    std::string File(const std::string& name) const { return folder_.File("prefix/" + name); }
    /// Where the client looks for plug-ins.
    std::string Plugins() const { return File(INSTALLED_PLUGINS); }
    /// A file of the person's data.
    std::string Data(const std::string& name) const { return folder_.File("data/" + name); }
    /// Any other file of the folder.
    std::string Other(const std::string& name) const { return folder_.File(name); }

    /// Runs the installed client with the folder's own data.
    Programs::Ended RunClient(const std::vector<std::string>& words) const;

  private:
    void Do(const std::vector<std::string>& words) const;

    TestSupport::TemporaryFolder folder_;
};

}  // namespace Tarvik::Sdk
