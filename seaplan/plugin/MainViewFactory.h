// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// Makes the main view and has it register with the host. False when no window could be made.
bool CreateMainView();

}  // namespace Tarvik::Seaplan
