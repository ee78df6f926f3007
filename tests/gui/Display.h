// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

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

}  // namespace Tarvik::Programs
