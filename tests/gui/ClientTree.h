// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/gui/ChildProcess.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Programs {

/// The built client with a data folder of the test's own.
class ClientTree {
  public:
    ClientTree();

    /// Puts a copy of the whole installed tree into the test's folder and runs that from now on, so that a
    /// test may damage it.
    void CopyTree();

    /// The words that start the client with the test's data folder, and a clean environment.
    ChildProcess::Start Words(const std::vector<std::string>& words) const;
    /// Runs `plan` to its end.
    Ended Plan(const std::vector<std::string>& words) const;

    /// A file of the copied tree, as "share/seaplan/land.bin".
    std::string TreeFile(const std::string& name) const { return folder_.File("tree/" + name); }
    std::string Data(const std::string& name = {}) const;
    void SetData(const std::string& folder) { data_ = folder; }

    /// The one number that a query of the voyage data base answers; -1 when it cannot be asked.
    long Number(const std::string& sql) const;

  private:
    TestSupport::TemporaryFolder folder_;
    std::string program_;
    std::string data_;
};

}  // namespace Tarvik::Programs
