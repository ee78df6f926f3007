// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/gui/ChildProcess.h"

namespace Tarvik::Programs {

/// An X server without a screen to look at, on a display number that was free.
class Display {
  public:
    /// `manager` is the program that manages the windows, empty for none.
    explicit Display(const std::string& manager = {});
    /// ":7"; empty when the server did not start.
    const std::string& Name() const { return name_; }

  private:
    void StartServer();
    void StartManager(const std::string& manager);

    std::string name_;
    std::unique_ptr<ChildProcess> server_;
    std::unique_ptr<ChildProcess> manager_;
};

/// The window managers under which a person's way is tried: none and, where the machine has one, that one. A
/// manager keeps the keyboard from a window that did not ask for it.
std::vector<std::string> Managers();

/// Name of a test under a manager.
inline std::string ManagerName(const std::string& manager) {
    return manager.empty() ? "WithoutManager" : "WithManager";
}

}  // namespace Tarvik::Programs
