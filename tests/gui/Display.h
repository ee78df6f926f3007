// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "tests/gui/ChildProcess.h"

namespace Tarvik::Programs {

/// An X server without a screen to look at, on a display number that was free.
class Display {
  public:
    Display();
    /// ":7"; empty when the server did not start.
    const std::string& Name() const { return name_; }

  private:
    std::string name_;
    std::unique_ptr<ChildProcess> server_;
};

}  // namespace Tarvik::Programs
