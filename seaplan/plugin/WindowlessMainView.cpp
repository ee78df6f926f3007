// SPDX-License-Identifier: MIT
#include "seaplan/plugin/Exports.h"

namespace Tarvik::Seaplan {

/// The library without windows: the planning service works, and there is no view to make.
bool CreateMainView() {
    return false;
}

}  // namespace Tarvik::Seaplan
