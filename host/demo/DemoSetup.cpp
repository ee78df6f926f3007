// SPDX-License-Identifier: MIT
#include "host/demo/DemoSetup.h"

#include <map>
#include <stdexcept>

#include <fmt/format.h>

#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Jsona.h>
#include <tarvik/util/PointText.h>
#include <tarvik/util/Units.h>

#include "host/demo/Samples.h"

namespace Tarvik::Demo {

namespace {

using Interface::NumberOf;
using Interface::VoyCommand;
using Util::Jsona;

constexpr std::int64_t kSecondsAnHour = 3600;

std::int64_t DepartureOf(const SampleVoyage& voyage, std::int64_t now) {
    return now + voyage.departure * kSecondsAnHour;
}

Jsona Ask(const Exchange& exchange, VoyCommand command, const std::string& text) {
    Jsona reply;
    if (!reply.parse(exchange(NumberOf(command), text)) || reply.getv("eid", 0) != 0) {
        throw std::runtime_error("The server refused " + text + ": " + reply.getv("emsg", "no reply"));
    }
    return reply;
}

/// Ids of the user's voyages by their names.
std::map<std::string, std::string> VoyageIds(const Exchange& exchange, const std::string& user) {
    std::map<std::string, std::string> ids;
    const Jsona categories = Ask(exchange, VoyCommand::LoadCatalog, fmt::format("{{ui:\"{}\"}}", user));
    for (int i = 0; i < categories.size(); ++i) {
        const Jsona voyages = categories.get(i).get("voys");
        for (int j = 0; j < voyages.size(); ++j) {
            ids[voyages.get(j).getv("vn", "")] = voyages.get(j).getv("vi", "");
        }
    }
    return ids;
}

/// The vessel's id at the server.
std::string AddVessel(const Exchange& exchange, const SampleVessel& vessel) {
    return Ask(exchange, VoyCommand::ChangeFleet,
               fmt::format(
                   "{{vsi:\"\",type:\"0\",vsn:\"{}\",vsmsi:\"{}\",vsimo:\"{}\",vscs:\"{}\",vst:\"{}\","
                   "vsl:\"{:.1f}\",vsp:\"{:.3f}\"}}",
                   vessel.name, vessel.mmsi, vessel.imo, vessel.callSign, vessel.type, vessel.length,
                   Util::KmhFromKnots(vessel.knots)))
        .getv("vsi", "");
}

/// The way of the position book, as ais-feed reads it.
std::string RouteOf(const Exchange& exchange, const std::string& vi) {
    const Jsona books = Ask(exchange, VoyCommand::LoadBook, fmt::format("{{vi:\"{}\"}}", vi));
    const Jsona rows = books.get(0).get("pb");
    std::string route;
    for (int i = 0; i < rows.size(); ++i) {
        const Jsona row = rows.get(i);
        route += (i == 0 ? "" : "|") + Util::PointText({row.getv("xc", 0.0), row.getv("yc", 0.0)}, 5);
    }
    return route;
}

/// Gives a voyage its vessel; the ship of the feed, empty for one that does not sail.
std::string GiveVessel(const Exchange& exchange, const SampleVoyage& voyage, const std::string& vi,
                       std::int64_t now) {
    for (const SampleVessel& vessel : Vessels()) {
        if (vessel.name != voyage.vessel) {
            continue;
        }
        const std::string vsi = AddVessel(exchange, vessel);
        Ask(exchange, VoyCommand::ChangeVoyage,
            fmt::format("{{vi:\"{}\",type:\"5\",vsi:\"{}\",vsn:\"{}\",vsmsi:\"{}\"}}", vi, vsi, vessel.name,
                        vessel.mmsi));
        if (voyage.isUnderWay) {
            Ask(exchange, VoyCommand::ChangeVoyage, fmt::format("{{vi:\"{}\",type:\"7\",va:\"1\"}}", vi));
            return fmt::format("{};{};{};{};{}\n", vessel.mmsi, vessel.name, voyage.knots,
                               DepartureOf(voyage, now), RouteOf(exchange, vi));
        }
    }
    return {};
}

}  // namespace

std::string PlanLines(std::int64_t now) {
    std::string lines;
    for (const SampleVoyage& voyage : Voyages()) {
        const auto time = Util::_datetime_t::from_gmt_timer(DepartureOf(voyage, now));
        lines += fmt::format("{}/{}\t{}\t{}", voyage.category, voyage.name, time.fmt(Util::kTimeFormat),
                             voyage.knots);
        for (const std::string_view port : voyage.ports) {
            lines += port.empty() ? std::string() : fmt::format("\t{}", port);
        }
        lines += '\n';
    }
    return lines;
}

std::string Finish(const Exchange& exchange, const std::string& user, std::int64_t now) {
    const std::map<std::string, std::string> ids = VoyageIds(exchange, user);
    std::string ships;
    for (const SampleVoyage& voyage : Voyages()) {
        const auto id = ids.find(std::string(voyage.name));
        if (id == ids.end()) {
            throw std::runtime_error("The voyage " + std::string(voyage.name) + " was not planned.");
        }
        ships += GiveVessel(exchange, voyage, id->second, now);
        if (voyage.isInBin) {
            Ask(exchange, VoyCommand::ChangeVoyage, fmt::format("{{vi:\"{}\",type:\"2\"}}", id->second));
        }
    }
    return ships;
}

}  // namespace Tarvik::Demo
