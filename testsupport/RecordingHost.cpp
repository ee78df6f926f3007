// SPDX-License-Identifier: MIT
#include "testsupport/RecordingHost.h"

#include <cstring>

#include <tarvik/bus/Binding.h>
#include <tarvik/interface/BusContract.h>

namespace Tarvik::TestSupport {

namespace {

namespace Bus = Interface::Bus;
using Interface::VoyServerRequest;

VoyServerRequest HeadOf(const std::string& bytes) {
    VoyServerRequest head{};
    std::memcpy(static_cast<void*>(&head), bytes.data(), sizeof head);
    return head;
}

VoyServerRequest* MakeReply(const std::string& json) {
    auto* reply =
        static_cast<VoyServerRequest*>(Core::AllocateBusBlock(sizeof(VoyServerRequest) + json.size() + 1));
    reply->length = static_cast<std::uint32_t>(json.size() + 1);
    reply->command = 0;
    reply->moduleWord = 0;
    std::memcpy(reply->Payload(), json.c_str(), json.size() + 1);
    return reply;
}

const std::string* TextOf(const std::optional<std::string>& text) {
    return text ? &*text : nullptr;
}

}  // namespace

std::uint32_t RecordedRequest::Length() const {
    return HeadOf(bytes).length;
}

std::uint16_t RecordedRequest::Command() const {
    return HeadOf(bytes).command;
}

std::uint16_t RecordedRequest::ModuleWord() const {
    return HeadOf(bytes).moduleWord;
}

std::string RecordedRequest::Text() const {
    return bytes.c_str() + sizeof(VoyServerRequest);
}

RecordingHost::RecordingHost() {
    OfferHost();
    OfferSiblings();
    OfferChart();
    OfferChartDeletion();
}

void RecordingHost::OfferHost() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::ServerExchange, this, &RecordingHost::OnExchange));
    bindings_.Keep(Offer(Bus::IsConnected, [this] {
        connectedFlag_ = connected ? 1 : 0;
        return &connectedFlag_;
    }));
    bindings_.Keep(Offer(Bus::Login, [this] { ++logins; }));
    bindings_.Keep(Offer(Bus::User, [this] { return TextOf(user); }));
    bindings_.Keep(Offer(Bus::CurrentTimeZone, [this] { return TextOf(zone); }));
}

void RecordingHost::OfferSiblings() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::VesselPositions, [this](const std::vector<std::string>& vessels) {
        positionQueries.push_back(vessels);
        return positions ? &*positions : nullptr;
    }));
    bindings_.Keep(Offer(Bus::ShowVesselCard,
                         [this](const Interface::VesselCard& card) { vesselCards.push_back(card); }));
    bindings_.Keep(Offer(Bus::VesselTrace, [this](const Interface::VesselTraceRequest& query) {
        trackQueries.push_back(query);
        return TextOf(track);
    }));
    bindings_.Keep(
        Offer(Bus::HideAisTrack, [this](const std::string& vessel) { hiddenTracks.push_back(vessel); }));
}

void RecordingHost::OfferChart() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::MapAddLayer, [this](const Interface::TrvMapLayerParams& layer) {
        chartCalls.push_back({Bus::MapAddLayer.name, layer.layer, "", {}, ""});
    }));
    bindings_.Keep(Offer(Bus::MapRemoveLayer, [this](const std::string& layer) {
        chartCalls.push_back({Bus::MapRemoveLayer.name, layer, "", {}, ""});
    }));
    bindings_.Keep(Offer(Bus::MapAddLine, this, &RecordingHost::OnAddLine));
    bindings_.Keep(Offer(Bus::MapAddPointLabel, [this](const Interface::TrvMapPointParams& label) {
        chartCalls.push_back(
            {Bus::MapAddPointLabel.name, label.ref.id, label.ref.type, {label.label}, label.position});
    }));
    bindings_.Keep(Offer(Bus::MapAddImage, [this](const Interface::TrvMapImageParams& image) {
        chartCalls.push_back(
            {Bus::MapAddImage.name, image.ref.id, image.ref.type, {image.image}, image.position});
    }));
    bindings_.Keep(Offer(Bus::MapRegisterImage, [this](const Interface::TrvMapImageReg& image) {
        chartCalls.push_back({Bus::MapRegisterImage.name, image.name, "", {}, ""});
    }));
    bindings_.Keep(Offer(Bus::MapSetExtent, this, &RecordingHost::OnSetExtent));
}

void RecordingHost::OfferChartDeletion() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::MapDeleteObjects, this, &RecordingHost::OnDeleteObjects));
    bindings_.Keep(Offer(Bus::MapDeleteObjectsByType, [this](const Interface::TrvMapObjectRef& ref) {
        chartCalls.push_back({Bus::MapDeleteObjectsByType.name, "", ref.type, {}, ""});
    }));
}

std::vector<std::string> RecordingHost::Texts() const {
    std::vector<std::string> texts;
    for (const RecordedRequest& request : requests) {
        texts.push_back(std::to_string(request.Command()) + " " + request.Text());
    }
    return texts;
}

std::vector<std::string> RecordingHost::TextsOf(std::uint16_t command) const {
    std::vector<std::string> texts;
    for (const RecordedRequest& request : requests) {
        if (request.Command() == command) {
            texts.push_back(request.Text());
        }
    }
    return texts;
}

std::vector<ChartCall> RecordingHost::ChartCallsOf(const std::string& service) const {
    std::vector<ChartCall> calls;
    for (const ChartCall& call : chartCalls) {
        if (call.service == service) {
            calls.push_back(call);
        }
    }
    return calls;
}

VoyServerRequest* RecordingHost::OnExchange(const VoyServerRequest& request) {
    requests.push_back(
        {std::string(reinterpret_cast<const char*>(&request), sizeof(VoyServerRequest) + request.length)});
    auto& queue = replies_[request.command];
    std::optional<std::string> json;
    if (!queue.empty()) {
        json = queue.front();
        queue.pop_front();
    } else if (server) {
        json = server(request);
    }
    return json ? MakeReply(*json) : nullptr;
}

void RecordingHost::OnAddLine(const Interface::TrvMapLineParams& line) {
    chartCalls.push_back({Bus::MapAddLine.name, line.ref.id, line.ref.type, line.points, ""});
}

void RecordingHost::OnDeleteObjects(const Interface::TrvMapObjectList& list) {
    ChartCall call{Bus::MapDeleteObjects.name, "", "", {}, ""};
    for (std::int32_t i = 0; i < list.count; ++i) {
        call.type = list.objects[i].type;
        call.points.push_back(list.objects[i].id);
    }
    chartCalls.push_back(call);
}

void RecordingHost::OnSetExtent(const Interface::TrvMapExtent& extent) {
    const std::vector<std::string> limits{std::to_string(extent.first), std::to_string(extent.second),
                                          std::to_string(extent.third), std::to_string(extent.fourth)};
    chartCalls.push_back({Bus::MapSetExtent.name, "", "", limits, ""});
}

}  // namespace Tarvik::TestSupport
