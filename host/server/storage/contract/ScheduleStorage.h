// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// Port calls, position books and AIS modification times of voyages.
class ScheduleStorage {
  public:
    virtual ~ScheduleStorage() = default;

    /// In the order of their sequence numbers.
    virtual Outcome<std::vector<PortCallRecord>> LoadPortCalls(const std::string& owner,
                                                               const std::string& voyageId) = 0;
    /// Puts `calls` in the place of all port calls; two of one sequence number are refused.
    virtual Status ReplacePortCalls(const std::string& owner, const std::string& voyageId,
                                    const std::vector<PortCallRecord>& calls) = 0;

    /// The voyage's book with its rows in the order of their sequence numbers, or nothing.
    virtual Outcome<std::optional<BookRecord>> LoadBook(const std::string& owner,
                                                        const std::string& voyageId) = 0;
    /// Gives the id of the new book; refused when the voyage has one.
    virtual Outcome<std::string> CreateBook(const std::string& owner, const std::string& voyageId,
                                            const std::string& date) = 0;
    virtual Status SetBookDate(const std::string& owner, const std::string& bookId,
                               const std::string& date) = 0;
    /// Puts `rows`, which may be none, in the place of all rows; two of one sequence number are refused. From
    /// now on `writer`, a text that tells clients apart, may append.
    virtual Status ReplaceBookRows(const std::string& owner, const std::string& bookId,
                                   const std::string& writer, const std::vector<BookRowRecord>& rows) = 0;
    /// Adds rows to a book that has some, if `writer` is who replaced them last: of two who write at once,
    /// the last who began wins, and the other is refused. Refused too: a sequence number that is taken, and
    /// rows that would be more than kMostRows with those that are there.
    virtual Status AppendBookRows(const std::string& owner, const std::string& bookId,
                                  const std::string& writer, const std::vector<BookRowRecord>& rows) = 0;

    /// In the order of their addition.
    virtual Outcome<std::vector<std::string>> LoadAisTimes(const std::string& owner,
                                                           const std::string& voyageId) = 0;
    /// A time that is there already stays there once.
    virtual Status AddAisTime(const std::string& owner, const std::string& voyageId,
                              const std::string& time) = 0;
};

}  // namespace Tarvik::Server
