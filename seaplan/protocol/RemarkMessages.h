// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/util/Jsona.h>

/// Remarks, what is written of them to the server, and what it answers. Values go into a request as they
/// stand, nothing is escaped: a quote or backslash changes the meaning, a line break goes in raw.
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
    /// Creation date as the server gave it; local `kTimeFormat` for one that was added here.
    std::string cdate;
    /// Last change, local text `kTimeFormat`; empty when the server gave none or no zone is known.
    std::string udate;

    bool operator==(const CRemark&) const = default;
};

/// Bytes, with the terminating NUL, that a request with a subject and body may have.
inline constexpr std::size_t kRemarkTextBytes = 4098;
/// The same for a request that only names remarks.
inline constexpr std::size_t kRemarkNameBytes = 256;

std::string AddRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                          const std::string& body);
std::string DeleteRemarkText(int type, const std::string& objectid, int seq);
std::string ChangeRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                             const std::string& body);
std::string LoadRemarksText(int type, const std::string& objectid);

/// Seconds after 1970 UTC as local text of the zone that the host names; empty when it names none. An empty
/// format means "%Y-%m-%d %H:%M". Remark times are timer values, so no cut-over date applies.
std::string UtcTextToLocal(std::int64_t gmtTimer, const std::string& format);
/// Local present time; an empty format means "%Y-%m-%d".
std::string NowText(const std::string& format);

/// The remarks of a list reply, in its order, one for each element, whatever its kind. Missing texts are
/// empty, a missing number is 0.
std::vector<CRemark> ReadRemarks(const Util::Jsona& reply, int type, const std::string& objectid);
/// Local text of a reply's time, which is a decimal text of seconds after 1970 UTC; empty for anything else.
std::string RemarkTimeText(const std::string& seconds);

}  // namespace Tarvik::Seaplan
