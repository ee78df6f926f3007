// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/RemarkStorage.h"
#include "host/server/storage/sqlite/SqliteSession.h"

namespace Tarvik::Server {

/// Remarks in an SQLite file.
class SqliteRemarks : public RemarkStorage {
  public:
    explicit SqliteRemarks(SqliteSession& session) : session_(session) {}

    Outcome<std::vector<RemarkRecord>> LoadRemarks(const std::string& owner,
                                                   const RemarkObject& object) override;
    Status AddRemark(const std::string& owner, const RemarkObject& object,
                     const RemarkRecord& remark) override;
    Status ChangeRemark(const std::string& owner, const RemarkObject& object,
                        const RemarkRecord& remark) override;
    Status DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) override;

  private:
    SqliteSession& session_;
};

}  // namespace Tarvik::Server
