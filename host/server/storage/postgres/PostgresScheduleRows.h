// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"
#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

/// The rows in the order of their sequence numbers.
std::vector<PortCallRecord> ReadPortCalls(PostgresConnection& connection, const std::string& owner,
                                          const std::string& voyageId);
std::vector<BookRowRecord> ReadBookRows(PostgresConnection& connection, const std::string& owner,
                                        const std::string& bookId);

/// Adds all rows in one statement; refuses the first sequence number that is taken, after which the
/// transaction must be undone.
Status InsertPortCalls(PostgresConnection& connection, const std::string& owner, const std::string& voyageId,
                       const std::vector<PortCallRecord>& calls);
Status InsertBookRows(PostgresConnection& connection, const std::string& owner, const std::string& bookId,
                      const std::vector<BookRowRecord>& rows);

}  // namespace Tarvik::Server
