// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <tarvik/util/Jsona.h>

#include "seaplan/calculation/RouteMessages.h"

using namespace Tarvik::Seaplan;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

std::string GroupText(const RoutePointGroup& group) {
    std::string text = group.rp_id + "=" + group.range + ";";
    for (std::size_t i = 0; i < group.alternatives.size(); ++i) {
        text += (i == 0 ? "" : "|") + group.alternatives[i];
    }
    return text;
}

/// A text that is one group is that group's parts, put together again.
void CheckAlone(const std::string& text) {
    RoutePointGroup group;
    const int code = ParseRoutePointGroup(text, group);
    Require(code == 0 || code == -2 || code == -3);
    Require((code == -2) == (text.find('=') == std::string::npos));
    Require(code != 0 || GroupText(group) == text);
}

/// The same text as a group, and as the lock, of a stop with two legs.
void CheckInReply(const std::string& text) {
    const std::string reply = R"([{point_cd:"1",routes:[],rp_groups:[]},{point_cd:"4",routes:[)"
                              R"({from_cd:"1",end_cd:"118"},{from_cd:"118",end_cd:"4"}],rp_groups:[")" +
                              text + R"("],lock_rp_id_str:")" + text + R"("}])";
    Tarvik::Util::Jsona parsed;
    if (!parsed.parse(reply)) {
        return;  // the text holds a quote or is not UTF-8
    }
    RouteStops stops;
    const int code = ParseRouteReply(parsed, stops);
    Require(code <= 0 && code >= -6);
    Require((code == 0) == !stops.empty());
    if (code != 0 || stops.size() != 2 || stops[1].rp_groups.empty()) {
        return;
    }
    std::string request = "left alone";
    const std::string id = stops[1].rp_groups[0].rp_id;
    const bool made = AlternativeRequestText(stops, id, "105", request);
    Require(made || request == "left alone");
    Require(!made || request.find("105=") != std::string::npos);
}

}  // namespace

// Any text gives a group, or the code of what it lacks; a group never says more or less than its text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    CheckAlone(text);
    CheckInReply(text);
    return 0;
}
