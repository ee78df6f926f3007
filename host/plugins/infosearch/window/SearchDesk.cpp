// SPDX-License-Identifier: MIT
#include "host/plugins/infosearch/window/SearchDesk.h"

#include <QApplication>
#include <QCursor>
#include <utility>
#include <vector>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/Log.h>

#include "host/plugins/infosearch/window/VesselFacts.h"
#include "host/plugins/infosearch/window/Words.h"
#include "host/ports/PlaceTable.h"

namespace Tarvik::InfoSearch {

namespace {

constexpr std::size_t kMostMatches = 8;

bool HasWindows() {
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

std::vector<Port> ReadPorts(const std::string& databaseFile) {
    std::vector<Ports::Place> places;
    std::string reason;
    if (!Ports::ReadPlaces(databaseFile, places, reason)) {
        Util::Log(Util::LogLevel::Error,
                  "Port search: " + databaseFile + " cannot be read (" + reason + "), no port is found.");
    }
    return Ports::PortsOf(places);
}

}  // namespace

SearchDesk::SearchDesk(std::string databaseFile) : databaseFile_(std::move(databaseFile)) {
    bindings_.Keep(Interface::Offer(Interface::Bus::MatchPorts, this, &SearchDesk::OnMatch));
    bindings_.Keep(Interface::Offer(Interface::Bus::ShowVesselInfo, this, &SearchDesk::OnVessel));
    bindings_.Keep(Interface::Subscribe(Interface::Bus::PortsChanged, [this] { ports_.reset(); }));
}

SearchDesk::~SearchDesk() {
    bindings_.Withdraw();
    // Once the window system is gone they must not be touched any more.
    if (QCoreApplication::instance() != nullptr) {
        delete matches_.data();
        delete vessel_.data();
    }
}

const PortIndex& SearchDesk::Ports() {
    if (!ports_) {
        ports_.emplace(ReadPorts(databaseFile_));
    }
    return *ports_;
}

Interface::OpaqueWindow* SearchDesk::OnMatch(const Interface::MatchPortQuery& query) {
    if (!HasWindows() || query.editor == nullptr || query.edit == nullptr) {
        return nullptr;
    }
    const std::vector<PortHit> hits = Ports().Search(query.text, kMostMatches);
    const bool onlyItself = hits.size() == 1 && hits[0].port->name == query.text;
    if (hits.empty() || onlyItself) {
        if (matches_) {
            matches_->hide();
        }
        return nullptr;
    }
    auto* editor = static_cast<QWidget*>(query.editor);
    if (!matches_) {
        matches_ = new MatchWindow(editor);
    }
    matches_->Follow(editor, static_cast<QWidget*>(query.edit));
    matches_->Fill(hits);
    matches_->raise();
    QWidget* window = matches_;
    return reinterpret_cast<Interface::OpaqueWindow*>(window);
}

void SearchDesk::OnVessel(const std::string& id) {
    if (!HasWindows() || id.empty()) {
        return;
    }
    if (!vessel_) {
        vessel_ = new Skin::FactsWindow(static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd()), "infoVessel",
                                        "infoVesselClose", Word("CLOSE"));
    }
    const VesselFacts told = VesselFacts::Of(id);
    vessel_->ShowFacts(told.name, told.facts, QCursor::pos());
}

}  // namespace Tarvik::InfoSearch
