// SPDX-License-Identifier: MIT
#include "seaplan/protocol/RemarkReply.h"

#include <charconv>
#include <cstdint>
#include <system_error>

#include <tarvik/util/StringUtl.h>

#include "seaplan/data/TimeText.h"
#include "seaplan/protocol/RemarkTime.h"

namespace Tarvik::Seaplan {

std::string RemarkTimeText(const std::string& seconds) {
    std::int64_t timer = 0;
    const char* const end = seconds.data() + seconds.size();
    const auto result = std::from_chars(seconds.data(), end, timer);
    if (result.ec != std::errc() || result.ptr != end) {
        return {};
    }
    return UtcTextToLocal(timer, kTimeFormat);
}

std::vector<CRemark> ReadRemarks(const Util::Jsona& reply, int type, const std::string& objectid) {
    std::vector<CRemark> remarks;
    for (int i = 0; i < reply.size(); ++i) {
        const Util::Jsona element = reply.get(i);
        if (element.kind() != Util::Jsona::Kind::Object) {
            continue;
        }
        CRemark remark;
        remark.type = type;
        remark.objectid = objectid;
        remark.seq = Util::StringUtl::ToInt(element.getv("seq", ""));
        remark.subject = element.getv("sub", "");
        remark.body = element.getv("body", "");
        remark.cdate = element.getv("cdate", "");
        remark.udate = RemarkTimeText(element.getv("udate", ""));
        remarks.push_back(std::move(remark));
    }
    return remarks;
}

}  // namespace Tarvik::Seaplan
