// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/core/FleetText.h"

#include <cstdint>

#include <fmt/format.h>

#include <tarvik/util/Jsona.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

#include "host/plugins/fleet/core/VesselDraft.h"

namespace Tarvik::Fleet {

namespace {

/// In quotes, with what would end the text written out.
std::string Quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
        }
        out += c;
    }
    return out + '"';
}

std::int32_t NumberOf(const Util::Jsona& vessel, const char* key) {
    return static_cast<std::int32_t>(Util::StringUtl::ToLong(vessel.getv(key, "0")));
}

double DecimalOf(const Util::Jsona& vessel, const char* key) {
    return Util::StringUtl::ToDouble(vessel.getv(key, "0"));
}

}  // namespace

std::string LoadRequest(const std::string& user) {
    return fmt::format("{{ui:{}}}", Quoted(user));
}

std::string ChangeRequest(Operation operation, const Interface::FleetVessel& vessel) {
    const std::string head =
        fmt::format("{{vsi:{},type:\"{}\"", Quoted(vessel.id), static_cast<int>(operation));
    if (operation == Operation::Remove) {
        return head + '}';
    }
    return head +
           fmt::format(",vsn:{},vsmsi:\"{}\",vsimo:\"{}\",vscs:{},vst:{},vsl:\"{:.1f}\",vsp:\"{:.3f}\"}}",
                       Quoted(vessel.name), vessel.mmsi, vessel.imo, Quoted(vessel.callSign),
                       Quoted(vessel.type), vessel.length, Util::KmhFromKnots(vessel.serviceSpeed));
}

std::optional<std::vector<Interface::FleetVessel>> ReadFleet(const std::string& reply) {
    Util::Jsona list;
    if (!list.parse(reply) || list.kind() != Util::Jsona::Kind::Array) {
        return std::nullopt;
    }
    std::vector<Interface::FleetVessel> fleet;
    for (int i = 0; i < list.size(); ++i) {
        const Util::Jsona item = list.get(i);
        Interface::FleetVessel vessel;
        vessel.id = item.getv("vsi", "");
        vessel.name = item.getv("vsn", "");
        vessel.mmsi = NumberOf(item, "vsmsi");
        vessel.imo = NumberOf(item, "vsimo");
        vessel.callSign = item.getv("vscs", "");
        vessel.type = item.getv("vst", "");
        vessel.length = DecimalOf(item, "vsl");
        vessel.serviceSpeed = KeptSpeed(Util::KnotsFromKmh(DecimalOf(item, "vsp")));
        fleet.push_back(vessel);
    }
    return fleet;
}

Verdict ReadVerdict(const std::string& reply) {
    Util::Jsona status;
    Verdict verdict;
    if (status.parse(reply) && status.has("eid")) {
        verdict.code = status.getv("eid", -1);
        verdict.id = status.getv("vsi", "");
    }
    return verdict;
}

}  // namespace Tarvik::Fleet
