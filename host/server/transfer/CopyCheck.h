// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <unordered_set>

#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

/// Whether the records of a file are such as the commands of the protocol could have stored. Operations give
/// the reason why not, one line; empty when all is well.
class CopyCheck {
  public:
    std::string User(const UserCopy& user);
    std::string Category(const CategoryCopy& category);
    std::string Voyage(const VoyageCopy& copy);
    std::string Remark(const RemarkCopy& copy);
    std::string Vessel(const FleetRecord& vessel);
    std::string Place(const PlaceRecord& place);

    /// The ids that were seen; 0 when there was none.
    std::int64_t LowestId() const { return lowestId_; }
    std::int64_t HighestId() const { return highestId_; }

  private:
    /// The same of a record of a list, which may have so many; `seen` counts them.
    template <class Record>
    std::string ListRecord(const Record& record, std::size_t most, std::size_t& seen);
    /// Notes an id; says what is wrong with it.
    std::string TakeId(const std::string& id);

    std::unordered_set<std::string> users_;
    std::unordered_set<std::string> seen_;
    std::int64_t lowestId_ = 0;
    std::int64_t highestId_ = 0;
    std::size_t vessels_ = 0;                              ///< of the present user
    std::size_t places_ = 0;                               ///< the same
    CopyIds known_;                                        ///< the same
    std::set<std::tuple<int, std::string, int>> remarks_;  ///< of the present user
};

}  // namespace Tarvik::Server
