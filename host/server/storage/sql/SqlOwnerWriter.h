// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

/// Writes whole owners inside a writing transaction, which must be undone when one fails.
class SqlOwnerWriter {
  public:
    /// `keepIds`: the records keep their ids, none of which may be taken.
    SqlOwnerWriter(SqlConnection& connection, bool keepIds) : connection_(connection), keepIds_(keepIds) {}

    /// Refuses a number that two rows of a voyage or two remarks of an object have, and a list that would be
    /// too long.
    Status Write(const OwnerCopy& copy);

  private:
    /// The id that a record gets.
    std::string NewId(const std::string& before);
    Status WriteLists(const OwnerCopy& copy);
    Status WriteVoyage(const VoyageCopy& copy, const std::string& categoryId);
    Status WriteSchedule(const VoyageCopy& copy, const std::string& voyageId);

    SqlConnection& connection_;
    bool keepIds_;
    std::string owner_;
    CopyIds ids_;
};

}  // namespace Tarvik::Server
