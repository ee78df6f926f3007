// SPDX-License-Identifier: MIT
#include "seaplan/protocol/RemarkMessages.h"

#include <charconv>
#include <cstdint>
#include <system_error>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

using Util::StringUtl;

std::string AddRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                          const std::string& body) {
    return StringUtl::Format(
        "{optype:\"1\",type:\"%d\",objectid:\"%s\",seq:\"%d\",subject:\"%s\",body:\"%s\"}", type,
        objectid.c_str(), seq, subject.c_str(), body.c_str());
}

std::string DeleteRemarkText(int type, const std::string& objectid, int seq) {
    return StringUtl::Format("{optype:\"2\",type:\"%d\",objectid:\"%s\",seq:\"%d\"}", type, objectid.c_str(),
                             seq);
}

std::string ChangeRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                             const std::string& body) {
    return StringUtl::Format(
        "{optype:\"3\",type:\"%d\",objectid:\"%s\",seq:\"%d\",subject:\"%s\",body:\"%s\"}", type,
        objectid.c_str(), seq, subject.c_str(), body.c_str());
}

std::string LoadRemarksText(int type, const std::string& objectid) {
    return StringUtl::Format("{optype:\"4\",type:\"%d\",objectid:\"%s\"}", type, objectid.c_str());
}

std::string UtcTextToLocal(std::int64_t gmtTimer, const std::string& format) {
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    if (zone == nullptr) {
        return {};
    }
    const Util::_datetime_t utc = Util::_datetime_t::from_gmt_timer(gmtTimer);
    return Util::DateTimeUtl::Format(Util::DateTimeUtl::ConvertFromUTC(utc, *zone),
                                     format.empty() ? Util::kMinuteFormat : format);
}

std::string NowText(const std::string& format) {
    return Util::DateTimeUtl::Format(Util::_datetime_t::now(), format.empty() ? Util::kDayFormat : format);
}

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
