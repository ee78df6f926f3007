// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/bus/PlacesContract.h>

namespace Bench {

/// This many green ships all over the oceans, without words, the same at each run.
Tarvik::Interface::TrvMapShips SomeShips(int count);

}  // namespace Bench
