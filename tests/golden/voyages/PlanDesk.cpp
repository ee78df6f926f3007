// SPDX-License-Identifier: MIT
#include "tests/golden/voyages/PlanDesk.h"

#include <filesystem>
#include <set>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/PendingRoute.h"
#include "tests/golden/voyages/GoldenFile.h"
#include "tests/golden/voyages/SeaServer.h"

namespace Tarvik::Golden {

namespace {

namespace Bus = Interface::Bus;
using namespace Seaplan;

constexpr int kDrawProgress = 1;
/// The zone in which plans are written to the server; a reader in another one sees other times.
constexpr const char* kZone = "China Standard Time";
constexpr int kZoneHours = 8;
constexpr double kShorter = 0.995;

/// Whether a click was taken: its one handler answers nothing then.
bool Click(const Interface::ClickEvent& event, const std::string& id) {
    const std::vector<const char*> answers = Interface::Raise(event, &id);
    return answers.size() == 1 && answers[0] == nullptr;
}

std::unique_ptr<Client::PortDictionary> ShippedPorts() {
    std::vector<Client::Port> ports;
    std::string error;
    if (!Client::ReadPorts(SHARE_FOLDER "/trvdb.db", ports, error)) {
        throw std::runtime_error(error);
    }
    return std::make_unique<Client::PortDictionary>(ports);
}

}  // namespace

PlanDesk::PlanDesk()
    : link_(std::make_unique<SeaServer>()),
      dictionary_(ShippedPorts()),
      services_(std::make_unique<Client::HostServices>(*link_, "local", kZone, [](const std::string&) {})) {
    std::filesystem::create_directories(folder_.PointsFile().parent_path());
    std::filesystem::copy_file(SHARE_FOLDER "/trvdb.db", folder_.PointsFile());
    Interface::ValueDictionary::Set(dictionary_.get());
}

PlanDesk::~PlanDesk() {
    Interface::ValueDictionary::Set(nullptr);
}

std::string PlanDesk::Prepare(const Voyage& voyage, PortCallRows& rows) {
    VoyCatalogController& catalog = root_.Catalog();
    std::string user;
    std::string ci;
    if (catalog.Connect(user) < 0 || catalog.Load(user) < 0) {
        return "connect";
    }
    if (catalog.AddCategory("Golden", ci) < 0 || catalog.AddVoyage(voyage.name, ci, vi_) < 0) {
        return "voyage";
    }
    for (const Call& call : voyage.calls) {
        VoyPortCall row;
        row.ppn = call.port;
        row.pp.clear();
        row.psp = call.speed;
        row.pw = call.weather;
        row.apt = call.stay;
        row.eta = voyage.start;
        rows.push_back(row);
    }
    PrepareFirstPurpose(rows);
    root_.Voyages().ResolvePortIds(rows);
    PortCallRows kept;
    if (DropSamePortRows(rows, {}, kept) < 0 || kept.size() != rows.size()) {
        return "ports";
    }
    rows = std::move(kept);
    return "";
}

std::string PlanDesk::Choose(const Voyage& voyage, PortCallRows& rows) {
    for (const Choice& choice : voyage.choices) {
        chart_.Heading("click on route point " + choice.RoutePoint);
        if (!Click(Bus::ClickVoyageType, choice.RoutePoint)) {
            return "alternatives of " + choice.RoutePoint;
        }
        chart_.Heading("click on alternative " + choice.alternative);
        if (!Click(Bus::ClickRoutePointType, choice.alternative)) {
            return "choice of " + choice.alternative;
        }
        root_.Voyages().ResolvePortIds(rows);
        PortCallRows followed;
        if (root_.Voyages().ScheduleCurrentRoute(rows, followed) < 0) {
            return "schedule of the chosen route";
        }
        rows = std::move(followed);
    }
    return "";
}

std::string PlanDesk::Save(const Voyage& voyage, const PortCallRows& rows, VoyageRecord& record) {
    chart_.Heading("save, and the ship at " + voyage.drawnAt.fmt("%Y-%m-%d %H:%M"));
    const Util::_datetime_t now = voyage.drawnAt - Util::_time_t(kZoneHours, 0);
    clock_.SetUtc(now.year(), now.month(), now.day(), now.hour());
    PortCallRows resolved = rows;
    root_.Voyages().ResolvePortIds(resolved);
    if (root_.Voyages().SaveSchedule(vi_, resolved, kDrawProgress) < 0) {
        return "save";
    }
    const VoyInfo* saved = store_.FindVoyage(vi_);
    if (saved == nullptr) {
        return "store";
    }
    record.rows = saved->portCalls;
    record.points = saved->positionBook.points;
    if (ComputeBookTimes(saved->positionBook.eta, saved->portCalls, record.points) < 0) {
        return "book times";
    }
    return "";
}

/// The schedule as the server gives it back, with what its rounded positions and speeds make of it.
std::string PlanDesk::LoadAgain(PortCallRows& rows) {
    if (root_.Voyages().DiscardPortCalls(vi_) < 0) {
        return "load again";
    }
    rows = store_.FindVoyage(vi_)->portCalls;
    return "";
}

std::string PlanDesk::TryAlternative(const Offer& offer, const RouteStops& stops) {
    VoyPortCallModule& module = root_.PortCallModule();
    module.Pending().Take(stops);
    if (!Click(Bus::ClickVoyageType, offer.RoutePoint) ||
        !Click(Bus::ClickRoutePointType, offer.alternative)) {
        return "refused";
    }
    const RouteStop& changed = module.Pending().Stops().at(offer.stop);
    const std::string passed = "," + changed.rp_id_str + ",";
    if (passed.find("," + offer.alternative + ",") == std::string::npos) {
        return "not passed";
    }
    if (passed.find("," + offer.RoutePoint + ",") != std::string::npos) {
        return "old one passed";
    }
    // A route without choices is the shortest there is, but for the roundness of coasts and for passages that
    // are used only when asked for.
    const RouteStop& before = stops[offer.stop];
    if (before.locks.empty() && !IsShutUnlessAsked(offer.alternative) &&
        static_cast<double>(changed.distance) < kShorter * static_cast<double>(before.distance)) {
        return "shorter";
    }
    return "";
}

std::vector<std::string> PlanDesk::TryAlternatives(const RouteStops& stops) {
    std::vector<std::string> complaints;
    std::set<std::string> seen;
    for (std::size_t s = 0; s < stops.size(); ++s) {
        for (const RoutePointGroup& group : stops[s].rp_groups) {
            // A click means the first stop that has the point.
            if (!seen.insert(group.rp_id).second) {
                continue;
            }
            for (const std::string& alternative : group.alternatives) {
                const std::string failed = TryAlternative({s, group.rp_id, alternative}, stops);
                if (!failed.empty()) {
                    complaints.push_back(fmt::format("{} to {}: {}", group.rp_id, alternative, failed));
                }
            }
        }
    }
    return complaints;
}

std::string PlanDesk::Run(const Voyage& voyage, VoyageRecord& record) {
    PortCallRows typed;
    if (std::string failed = Prepare(voyage, typed); !failed.empty()) {
        return failed;
    }
    chart_.Heading("calculate");
    PortCallRows rows;
    int hadPortCalls = 0;
    if (root_.Voyages().CalculateForVoyage(vi_, typed, rows, hadPortCalls) < 0) {
        return "calculate";
    }
    if (std::string failed = Choose(voyage, rows); !failed.empty()) {
        return failed;
    }
    record.stops = root_.PortCallModule().Pending().Stops();
    if (std::string failed = Save(voyage, rows, record); !failed.empty()) {
        return failed;
    }
    record.route = RouteText(record.stops);
    record.book = BookText(record.points);
    PortCallRows loaded;
    if (std::string failed = LoadAgain(loaded); !failed.empty()) {
        return failed;
    }
    record.schedule = ScheduleText(record.rows) + "\nloaded again:\n" + ScheduleText(loaded);
    record.chart = chart_.Text();
    return "";
}

}  // namespace Tarvik::Golden
