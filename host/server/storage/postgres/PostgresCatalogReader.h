// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/contract/Records.h"
#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

/// The owner's categories with their voyages, without destroyed ones, in the order of their ids as numbers.
std::vector<CategoryRecord> ReadCatalog(PostgresConnection& connection, const std::string& owner);

}  // namespace Tarvik::Server
