// SPDX-License-Identifier: MIT
#include "seaplan/protocol/RemarkTime.h"

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>

namespace Tarvik::Seaplan {

std::string UtcTextToLocal(std::int64_t gmtTimer, const std::string& format) {
    const std::string* zone = Interface::Call(Interface::Bus::CurrentTimeZone);
    if (zone == nullptr) {
        return {};
    }
    const Util::_datetime_t utc = Util::_datetime_t::from_gmt_timer(gmtTimer);
    return Util::DateTimeUtl::Format(Util::DateTimeUtl::ConvertFromUTC(utc, *zone),
                                     format.empty() ? "%Y-%m-%d %H:%M" : format);
}

std::string NowText(const std::string& format) {
    return Util::DateTimeUtl::Format(Util::_datetime_t::now(), format.empty() ? "%Y-%m-%d" : format);
}

}  // namespace Tarvik::Seaplan
