// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/RemarkStorage.h"
#include "host/server/storage/postgres/PostgresSession.h"

namespace Tarvik::Server {

/// Remarks in a PostgreSQL data base.
class PostgresRemarks : public RemarkStorage {
  public:
    explicit PostgresRemarks(PostgresSession& session) : session_(session) {}

    Outcome<std::vector<RemarkRecord>> LoadRemarks(const std::string& owner,
                                                   const RemarkObject& object) override;
    Status AddRemark(const std::string& owner, const RemarkObject& object,
                     const RemarkRecord& remark) override;
    Status ChangeRemark(const std::string& owner, const RemarkObject& object,
                        const RemarkRecord& remark) override;
    Status DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) override;

  private:
    PostgresSession& session_;
};

}  // namespace Tarvik::Server
