// SPDX-License-Identifier: MIT
#include "testsupport/RecordingHost.h"

#include <cstring>

#include <tarvik/core/BusBlock.h>

namespace Tarvik::TestSupport {

namespace {

namespace Bus = Interface::Bus;
using Interface::VoyServerRequest;

VoyServerRequest HeadOf(const std::string& bytes) {
    VoyServerRequest head{};
    std::memcpy(static_cast<void*>(&head), bytes.data(), sizeof head);
    return head;
}

VoyServerRequest* makeReply(const std::string& json) {
    auto* reply =
        static_cast<VoyServerRequest*>(Core::AllocateBusBlock(sizeof(VoyServerRequest) + json.size() + 1));
    reply->length = static_cast<std::uint32_t>(json.size() + 1);
    reply->command = 0;
    reply->moduleWord = 0;
    std::memcpy(reply->Payload(), json.c_str(), json.size() + 1);
    return reply;
}

template <class T>
const T& as(void* input) {
    return *static_cast<const T*>(input);
}

void* TextOf(const std::optional<std::string>& text) {
    return text ? const_cast<std::string*>(&*text) : nullptr;
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

template <auto Method>
void RecordingHost::bind(const char* name) {
    auto delegate = std::make_unique<Core::TEvent>();
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    kernel->CreateTrvService(name, this, "", "", nullptr);
    delegate->Set<Method>(this);
    kernel->BindTrvService(name, delegate.get());
    bindings_.emplace_back(name, std::move(delegate));
}

RecordingHost::RecordingHost() {
    bind<&RecordingHost::OnExchange>(Bus::ServerExchange.name);
    bind<&RecordingHost::OnConnected>(Bus::IsConnected.name);
    bind<&RecordingHost::OnLogin>(Bus::Login.name);
    bind<&RecordingHost::OnUser>(Bus::User.name);
    bind<&RecordingHost::onZone>(Bus::CurrentTimeZone.name);
    bind<&RecordingHost::onPositions>(Bus::VesselPositions.name);
    bind<&RecordingHost::onVesselCard>(Bus::ShowVesselCard.name);
    bind<&RecordingHost::onTrack>(Bus::VesselTrace.name);
    bind<&RecordingHost::onHideTrack>(Bus::HideAisTrack.name);
    bindChart();
}

void RecordingHost::bindChart() {
    bind<&RecordingHost::onAddLayer>(Bus::MapAddLayer.name);
    bind<&RecordingHost::onAddLine>(Bus::MapAddLine.name);
    bind<&RecordingHost::onAddLabel>(Bus::MapAddPointLabel.name);
    bind<&RecordingHost::onAddImage>(Bus::MapAddImage.name);
    bind<&RecordingHost::onRegisterImage>(Bus::MapRegisterImage.name);
    bind<&RecordingHost::onDeleteObjects>(Bus::MapDeleteObjects.name);
    bind<&RecordingHost::onDeleteType>(Bus::MapDeleteObjectsByType.name);
    bind<&RecordingHost::onSetExtent>(Bus::MapSetExtent.name);
}

RecordingHost::~RecordingHost() {
    for (auto binding = bindings_.rbegin(); binding != bindings_.rend(); ++binding) {
        Core::TrvKernel::Instance()->UnBindTrvService(binding->first.c_str(), binding->second.get());
        Core::TrvKernel::Instance()->DeleteTrvService(binding->first.c_str(), this);
    }
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

void* RecordingHost::OnExchange(void* input) {
    const auto& request = as<VoyServerRequest>(input);
    requests.push_back(
        {std::string(static_cast<const char*>(input), sizeof(VoyServerRequest) + request.length)});
    auto& queue = replies_[request.command];
    std::optional<std::string> json;
    if (!queue.empty()) {
        json = queue.front();
        queue.pop_front();
    } else if (server) {
        json = server(request);
    }
    return json ? makeReply(*json) : nullptr;
}

void* RecordingHost::OnConnected(void*) {
    connectedFlag_ = connected ? 1 : 0;
    return &connectedFlag_;
}

void* RecordingHost::OnLogin(void*) {
    ++logins;
    return nullptr;
}

void* RecordingHost::OnUser(void*) {
    return TextOf(user);
}

void* RecordingHost::onZone(void*) {
    return TextOf(zone);
}

void* RecordingHost::onPositions(void* input) {
    positionQueries.push_back(as<std::vector<std::string>>(input));
    return positions ? &*positions : nullptr;
}

void* RecordingHost::onVesselCard(void* input) {
    vesselCards.push_back(as<Interface::VesselCard>(input));
    return nullptr;
}

void* RecordingHost::onTrack(void* input) {
    trackQueries.push_back(as<Interface::VesselTraceRequest>(input));
    return TextOf(track);
}

void* RecordingHost::onHideTrack(void* input) {
    hiddenTracks.push_back(as<std::string>(input));
    return nullptr;
}

void* RecordingHost::onAddLayer(void* input) {
    chartCalls.push_back({Bus::MapAddLayer.name, as<Interface::TrvMapLayerParams>(input).layer, "", {}, ""});
    return nullptr;
}

void* RecordingHost::onAddLine(void* input) {
    const auto& line = as<Interface::TrvMapLineParams>(input);
    chartCalls.push_back({Bus::MapAddLine.name, line.ref.id, line.ref.type, line.points, ""});
    return nullptr;
}

void* RecordingHost::onAddLabel(void* input) {
    const auto& label = as<Interface::TrvMapPointParams>(input);
    chartCalls.push_back(
        {Bus::MapAddPointLabel.name, label.ref.id, label.ref.type, {label.label}, label.position});
    return nullptr;
}

void* RecordingHost::onAddImage(void* input) {
    const auto& image = as<Interface::TrvMapImageParams>(input);
    chartCalls.push_back(
        {Bus::MapAddImage.name, image.ref.id, image.ref.type, {image.image}, image.position});
    return nullptr;
}

void* RecordingHost::onRegisterImage(void* input) {
    chartCalls.push_back({Bus::MapRegisterImage.name, as<Interface::TrvMapImageReg>(input).name, "", {}, ""});
    return nullptr;
}

void* RecordingHost::onDeleteObjects(void* input) {
    const auto& list = as<Interface::TrvMapObjectList>(input);
    ChartCall call{Bus::MapDeleteObjects.name, "", "", {}, ""};
    for (std::int32_t i = 0; i < list.count; ++i) {
        call.type = list.objects[i].type;
        call.points.push_back(list.objects[i].id);
    }
    chartCalls.push_back(call);
    return nullptr;
}

void* RecordingHost::onDeleteType(void* input) {
    chartCalls.push_back(
        {Bus::MapDeleteObjectsByType.name, "", as<Interface::TrvMapObjectRef>(input).type, {}, ""});
    return nullptr;
}

void* RecordingHost::onSetExtent(void* input) {
    const auto& extent = as<Interface::TrvMapExtent>(input);
    const std::vector<std::string> limits{std::to_string(extent.first), std::to_string(extent.second),
                                          std::to_string(extent.third), std::to_string(extent.fourth)};
    chartCalls.push_back({Bus::MapSetExtent.name, "", "", limits, ""});
    return nullptr;
}

}  // namespace Tarvik::TestSupport
