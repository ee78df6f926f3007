// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/server/storage/contract/CopyIds.h"
#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// Writes whole owners inside a writing transaction, which must be undone when one fails.
class SqliteOwnerWriter {
  public:
    /// `keepIds`: the records keep their ids, none of which may be taken.
    SqliteOwnerWriter(SqliteDatabase& database, bool keepIds) : database_(database), keepIds_(keepIds) {}

    Status Write(const OwnerCopy& copy);

  private:
    /// The id that a record gets.
    std::string NewId(const std::string& before);
    void WriteCategory(const CategoryCopy& category, const std::string& id);
    void WriteVoyage(const VoyageRecord& voyage, const std::string& categoryId, const std::string& id);
    Status WriteSchedule(const VoyageCopy& copy, const std::string& voyageId);
    void WriteRemark(const RemarkCopy& copy);

    SqliteDatabase& database_;
    bool keepIds_;
    std::string owner_;
    CopyIds ids_;
};

}  // namespace Tarvik::Server
