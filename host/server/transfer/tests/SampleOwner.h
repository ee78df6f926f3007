// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// Gives the user something of every kind: categories in use, in the bin and destroyed, voyages likewise,
/// odd texts and numbers, books short and empty, remarks on all three kinds of objects. All over the
/// operations that requests use.
void MakeSample(Storage& storage, const std::string& user);

/// A category "A" with a voyage "V" that have nothing else.
void MakeSmall(Storage& storage, const std::string& user);

}  // namespace Tarvik::Server
