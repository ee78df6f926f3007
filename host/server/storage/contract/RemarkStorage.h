// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// Remarks on categories, voyages and port calls. The object must be known to the catalog of the same owner.
class RemarkStorage {
  public:
    virtual ~RemarkStorage() = default;

    /// In the order of their numbers.
    virtual Outcome<std::vector<RemarkRecord>> LoadRemarks(const std::string& owner,
                                                           const RemarkObject& object) = 0;
    /// Refused when the object has a remark of this number.
    virtual Status AddRemark(const std::string& owner, const RemarkObject& object,
                             const RemarkRecord& remark) = 0;
    /// Changes subject, body and time of the last change; the time of creation stays.
    virtual Status ChangeRemark(const std::string& owner, const RemarkObject& object,
                                const RemarkRecord& remark) = 0;
    virtual Status DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) = 0;
};

}  // namespace Tarvik::Server
