// SPDX-License-Identifier: MIT
#include "seaplan/panels/tests/PanelDesk.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "host/server/app/EmbeddedServer.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/DeskRoutes.h"
#include "seaplan/protocol/RemarkList.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/DataFolder.h"
#include "testsupport/ManualClock.h"
#include "testsupport/ManualTimer.h"
#include "testsupport/PortDictionary.h"
#include "testsupport/RecordingHost.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::int64_t kServerTime = 1709251200;
constexpr const char* kRefusal = R"({"eid":99,"emsg":"refused by the test"})";

TestSupport::PortDictionary::Ports IdsByName() {
    TestSupport::PortDictionary::Ports ids;
    for (const DeskPort& port : DeskPorts()) {
        ids[port.name] = port.id;
    }
    return ids;
}

void Require(bool done, const std::string& what) {
    if (!done) {
        throw std::runtime_error("the test world cannot be arranged: " + what);
    }
}

bool Holds(const std::string& text, DeskRequest request, const std::string& part) {
    return text.find(request.part) != std::string::npos && text.find(part) != std::string::npos;
}

void AddRemark(int type, const std::string& id) {
    RemarkList remarks;
    int seq = 0;
    Require(remarks.AddRemark(type, id, seq, "Subject", "Body"), "a remark");
}

}  // namespace

struct PanelDesk::Parts {
    TestSupport::DataFolder folder;
    TestSupport::ManualClock clock;
    TestSupport::ManualTimer timer;
    TestSupport::RecordingMsgSink messages;
    TestSupport::RecordingHost host;
    TestSupport::PortDictionary names{IdsByName()};
    VoyageStore store;
    VoyCatalogModule catalogModule{&store};
    VoyCatalogController catalog{&catalogModule, &store};
    PortDirectory directory;
    VoyPortCallModule portCallModule{&store, &directory};
    VoyController voyages{&portCallModule, &catalog, &store};
    std::unique_ptr<Server::EmbeddedServer> server;
};

PanelDesk::PanelDesk(const std::string& database)
    : parts_(std::make_unique<Parts>()),
      folder(parts_->folder),
      clock(parts_->clock),
      timer(parts_->timer),
      messages(parts_->messages),
      host(parts_->host),
      names(parts_->names),
      store(parts_->store),
      catalogModule(parts_->catalogModule),
      catalog(parts_->catalog),
      directory(parts_->directory),
      portCallModule(parts_->portCallModule),
      voyages(parts_->voyages) {
    folder.WritePoints(DeskPoints());
    auto ways = std::make_unique<DeskRoutes>();
    routes = ways.get();
    std::string error;
    parts_->server =
        Server::EmbeddedServer::Open(database, std::move(ways), error, [] { return kServerTime; });
    Require(parts_->server != nullptr, error);
    host.server = [this](const Interface::VoyServerRequest& request) { return Answer(request); };
    catalog.SetVoyController(&voyages);
}

PanelDesk::~PanelDesk() = default;

std::optional<std::string> PanelDesk::Answer(const Interface::VoyServerRequest& request) {
    const std::string text = host.requests.back().Text();
    for (const Failure& failure : failures_) {
        if (failure.request.command == request.command && Holds(text, failure.request, {})) {
            return failure.refused ? std::optional<std::string>(kRefusal) : std::nullopt;
        }
    }
    return parts_->server->Exchange(host.user.value_or(""), &request);
}

std::string PanelDesk::AddCategory(const std::string& name, bool remark) {
    std::string ci;
    Require(catalogModule.CreateCategory(name, ci) == 0, name);
    if (remark) {
        constexpr int kOfCategory = 2;
        AddRemark(kOfCategory, ci);
    }
    ForgetRecords();
    return ci;
}

std::string PanelDesk::CategoryOnServer(const std::string& name) {
    VoyageStore all;
    Require(VoyCatalogModule(&all).LoadAll(host.user.value_or("")) == 0, "the categories");
    for (const auto& [ci, category] : all.categories) {
        if (category.cn == name) {
            return ci;
        }
    }
    Require(false, "no category " + name);
    return {};
}

std::string PanelDesk::AddVoyage(const std::string& category, const DeskVoyage& voyage) {
    std::string vi;
    Require(catalogModule.CreateVoyage(voyage.name, CategoryOnServer(category), vi) == 0, voyage.name);
    if (!voyage.vsn.empty() || !voyage.vsi.empty()) {
        Require(catalogModule.ChangeVessel(vi, voyage.vsi, voyage.vsn, voyage.vsmsi) == 0, voyage.vsn);
    }
    if (voyage.calls.size() > 1) {
        SaveCalls(vi, voyage.calls);
    }
    Require(!voyage.pinned || catalogModule.SetRouteDisplay(vi, "open") == 0, "the pin");
    Require(!voyage.traced || catalogModule.SetAisTracing(vi, "open") == 0, "the track");
    if (voyage.remark) {
        constexpr int kOfVoyage = 3;
        AddRemark(kOfVoyage, vi);
    }
    for (const std::string& time : voyage.corrections) {
        Require(catalogModule.AddAisModTime(vi, time) == 0, time);
    }
    SetState(vi, voyage.state);
    ForgetRecords();
    return vi;
}

void PanelDesk::SetState(const std::string& vi, int state) {
    constexpr int kToBin = 2;
    constexpr int kDestroy = 4;
    Require(state == InUse || catalogModule.ChangeVoyageState(vi, kToBin) == 0, "the recycle bin");
    Require(state != Destroyed || catalogModule.ChangeVoyageState(vi, kDestroy) == 0, "the end");
}

void PanelDesk::MoveCategory(const std::string& name, int state) {
    constexpr int kToBin = 1;
    constexpr int kDestroy = 3;
    const std::string ci = CategoryOnServer(name);
    Require(catalogModule.ChangeCategoryState(ci, kToBin) == 0, "the recycle bin");
    Require(state != Destroyed || catalogModule.ChangeCategoryState(ci, kDestroy) == 0, "the end");
    ForgetRecords();
}

void PanelDesk::SaveCalls(const std::string& vi, PortCallRows calls) {
    const bool known = store.FindVoyage(vi) != nullptr;
    store.voyages[vi].vi = vi;
    PortCallRows planned;
    voyages.ResolvePortIds(calls);
    Require(voyages.CalculatePortCalls(calls, planned) == 0, "the way");
    voyages.Module().Pending().Assign(vi);
    Require(voyages.SaveSchedule(vi, planned, -1) == 0, "the port calls");
    if (!known) {
        store.voyages.erase(vi);
    }
    voyages.Module().Pending().Forget();
    voyages.Module().Pending().NoteRowsChanged();
    voyages.ClearChart();
    ForgetRecords();
}

PortCallRows PanelDesk::Calls(int day, int count) {
    constexpr const char* kPorts[] = {"ROTTERDAM", "HAMBURG", "GDANSK", "ROSTOCK"};
    PortCallRows rows(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].ppn = kPorts[i];
        rows[i].pp = i == 0 ? "L" : "D";
        rows[i].psp = i == 0 ? 0.0F : 10.0F;
    }
    rows.front().eta = Util::_datetime_t(0, 0, 8, day, 3, 2024);
    return rows;
}

VoyCategory& PanelDesk::Category(const std::string& name) {
    for (auto& [ci, category] : store.categories) {
        if (category.cn == name) {
            return category;
        }
    }
    throw std::out_of_range("no category " + name);
}

VoyInfo& PanelDesk::Voyage(const std::string& name) {
    for (auto& [vi, voyage] : store.voyages) {
        if (voyage.vn == name) {
            return voyage;
        }
    }
    throw std::out_of_range("no voyage " + name);
}

std::vector<std::string> PanelDesk::Sent(DeskRequest request, const std::string& part) const {
    std::vector<std::string> texts = host.TextsOf(request.command);
    std::erase_if(texts, [&](const std::string& text) { return !Holds(text, request, part); });
    return texts;
}

long PanelDesk::Count(DeskRequest request, const std::string& part) const {
    return static_cast<long>(Sent(request, part).size());
}

void PanelDesk::ForgetRecords() {
    host.requests.clear();
    host.chartCalls.clear();
    host.positionQueries.clear();
    host.trackQueries.clear();
    host.hiddenTracks.clear();
}

void PanelDesk::Load() {
    std::string user;
    Require(catalog.Connect(user) == 0 && catalog.Load(user) == 0, "the voyages");
}

std::size_t PanelDesk::Drawn(const char* service) const {
    return host.ChartCallsOf(service).size();
}

}  // namespace Tarvik::Seaplan
