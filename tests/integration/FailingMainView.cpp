// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "seaplan/plugin/Exports.h"

namespace Tarvik::Seaplan {

/// A window system that breaks down while the main view is made.
bool CreateMainView() {
    throw std::runtime_error("no window");
}

}  // namespace Tarvik::Seaplan
