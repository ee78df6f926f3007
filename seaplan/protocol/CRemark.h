// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

/// Classes of objects that remarks are attached to.
enum RemarkObject : int { CategoryRemark = 2, VoyageRemark = 3, PortCallRemark = 4 };

/// A titled note attached to a category, a voyage or a port of a voyage. Type, object and number together
/// name one remark.
struct CRemark {
    int type = 0;
    /// `ci`, `vi`, or for a port call `vi` directly followed by the port's name.
    std::string objectid;
    /// Number within its object, at least 1, chosen by the client.
    int seq = 0;
    std::string subject;
    std::string body;
    /// Creation date as the server gave it; local "%Y-%m-%d %H:%M:%S" for one that was added here.
    std::string cdate;
    /// Last change, local text "%Y-%m-%d %H:%M:%S"; empty when the server gave none or no zone is known.
    std::string udate;

    bool operator==(const CRemark&) const = default;
};

}  // namespace Tarvik::Seaplan
