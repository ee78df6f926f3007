// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/ScheduleStorage.h"
#include "host/server/storage/postgres/PostgresSession.h"

namespace Tarvik::Server {

/// Port calls, position books and AIS modification times in a PostgreSQL data base.
class PostgresSchedule : public ScheduleStorage {
  public:
    explicit PostgresSchedule(PostgresSession& session) : session_(session) {}

    Outcome<std::vector<PortCallRecord>> LoadPortCalls(const std::string& owner,
                                                       const std::string& voyageId) override;
    Status ReplacePortCalls(const std::string& owner, const std::string& voyageId,
                            const std::vector<PortCallRecord>& calls) override;
    Outcome<std::optional<BookRecord>> LoadBook(const std::string& owner,
                                                const std::string& voyageId) override;
    Outcome<std::string> CreateBook(const std::string& owner, const std::string& voyageId,
                                    const std::string& date) override;
    Status SetBookDate(const std::string& owner, const std::string& bookId, const std::string& date) override;
    Status ReplaceBookRows(const std::string& owner, const std::string& bookId,
                           const std::vector<BookRowRecord>& rows) override;
    Status AppendBookRows(const std::string& owner, const std::string& bookId,
                          const std::vector<BookRowRecord>& rows) override;
    Outcome<std::vector<std::string>> LoadAisTimes(const std::string& owner,
                                                   const std::string& voyageId) override;
    Status AddAisTime(const std::string& owner, const std::string& voyageId,
                      const std::string& time) override;

  private:
    PostgresSession& session_;
};

}  // namespace Tarvik::Server
