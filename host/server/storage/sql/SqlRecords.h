// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"
#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

/// Reads and writes whole records within a transaction, for the operations on a voyage and for those on a
/// whole owner. Reading takes what is there: whether a voyage may be seen is the caller's question.

/// The owner's categories with their voyages, without destroyed ones, in the order of their ids as numbers.
std::vector<CategoryRecord> ReadCatalog(SqlConnection& connection, const std::string& owner);

/// The port calls of a voyage in the order of their numbers.
std::vector<PortCallRecord> ReadPortCalls(SqlConnection& connection, const std::string& owner,
                                          const std::string& voyageId);

/// The book of a voyage with its rows in the order of their numbers.
std::optional<BookRecord> ReadBook(SqlConnection& connection, const std::string& owner,
                                   const std::string& voyageId);

/// The AIS modification times of a voyage in the order of their addition.
std::vector<std::string> ReadAisTimes(SqlConnection& connection, const std::string& owner,
                                      const std::string& voyageId);

/// Adds a category under this id.
void InsertCategory(SqlConnection& connection, const std::string& owner, const std::string& id,
                    const std::string& name, DeletionState state);

/// Adds a voyage under this id; its own id and derived fields are ignored.
void InsertVoyage(SqlConnection& connection, const std::string& owner, const std::string& id,
                  const std::string& categoryId, const VoyageRecord& voyage);

/// Adds a book without rows under this id.
void InsertBook(SqlConnection& connection, const std::string& owner, const std::string& id,
                const std::string& voyageId, const std::string& date);

/// Adds port calls; refuses the first number that is taken, after which the transaction must be undone.
Status InsertPortCalls(SqlConnection& connection, const std::string& owner, const std::string& voyageId,
                       const std::vector<PortCallRecord>& calls);

/// Adds rows to a book; refuses as InsertPortCalls does.
Status InsertBookRows(SqlConnection& connection, const std::string& owner, const std::string& bookId,
                      const std::vector<BookRowRecord>& rows);

/// Adds a remark; false when its object has one of this number.
bool InsertRemark(SqlConnection& connection, const std::string& owner, const RemarkObject& object,
                  const RemarkRecord& remark);

/// The owner's fleet in the order of the ids as numbers.
std::vector<FleetRecord> ReadFleet(SqlConnection& connection, const std::string& owner);

/// Adds a vessel under this id; its own is ignored. Refused when the fleet is full. Nobody else changes the
/// owner's fleet from then until the end of the transaction.
Status InsertVessel(SqlConnection& connection, const std::string& owner, const std::string& id,
                    const FleetRecord& vessel);

/// The owner's own ports in the order of the ids as numbers.
std::vector<PlaceRecord> ReadPlaces(SqlConnection& connection, const std::string& owner);

/// Adds an own port as InsertVessel adds a vessel.
Status InsertPlace(SqlConnection& connection, const std::string& owner, const std::string& id,
                   const PlaceRecord& place);

}  // namespace Tarvik::Server
