// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/tests/VoyCalChart.h"

#include <algorithm>
#include <iterator>
#include <new>

#include <tarvik/core/BusBlock.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan::Testing {

namespace {

template <class Record>
const Record& as(const void* input) {
    return *static_cast<const Record*>(input);
}

}  // namespace

VoyCalChart::VoyCalChart() {
    namespace Bus = Interface::Bus;
    Core::TrvKernel::Instance()->Reset();
    bind<&VoyCalChart::addLayer>(Bus::MapAddLayer.name);
    bind<&VoyCalChart::removeLayer>(Bus::MapRemoveLayer.name);
    bind<&VoyCalChart::addLine>(Bus::MapAddLine.name);
    bind<&VoyCalChart::AddLabel>(Bus::MapAddPointLabel.name);
    bind<&VoyCalChart::deleteByType>(Bus::MapDeleteObjectsByType.name);
    bind<&VoyCalChart::getPort>(Bus::MapGetPort.name);
    bind<&VoyCalChart::getExtent>(Bus::MapGetExtent.name);
    bind<&VoyCalChart::setExtent>(Bus::MapSetExtent.name);
}

VoyCalChart::~VoyCalChart() {
    Core::TrvKernel::Instance()->Reset();
}

template <auto Method>
void VoyCalChart::bind(const char* name) {
    auto& delegate = delegates_.emplace_back();
    delegate.Set<Method>(this);
    Core::TrvKernel::Instance()->CreateTrvService(name, this, "", "", nullptr);
    Core::TrvKernel::Instance()->BindTrvService(name, &delegate);
}

std::vector<std::string> VoyCalChart::CallsOf(const std::string& word) const {
    std::vector<std::string> found;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                 [&](const std::string& call) { return call.starts_with(word); });
    return found;
}

void* VoyCalChart::addLayer(void* input) {
    calls.push_back("layer " + as<Interface::TrvMapLayerParams>(input).layer);
    return nullptr;
}

void* VoyCalChart::removeLayer(void* input) {
    calls.push_back("remove " + as<std::string>(input));
    return nullptr;
}

void* VoyCalChart::addLine(void* input) {
    lines.push_back(as<Interface::TrvMapLineParams>(input));
    calls.push_back("line " + lines.back().ref.layer + "/" + lines.back().ref.type);
    return nullptr;
}

void* VoyCalChart::AddLabel(void* input) {
    labels.push_back(as<Interface::TrvMapPointParams>(input));
    const auto& label = labels.back();
    calls.push_back("label " + label.ref.layer + "/" + label.ref.type + "/" + label.ref.id + " " +
                    label.label + " " + label.position);
    return nullptr;
}

void* VoyCalChart::deleteByType(void* input) {
    const auto& ref = as<Interface::TrvMapObjectRef>(input);
    calls.push_back("clear " + ref.layer + "/" + ref.type);
    return nullptr;
}

void* VoyCalChart::getPort(void* input) {
    calls.push_back("port " + as<std::string>(input));
    const auto found = ports.find(as<std::string>(input));
    return found == ports.end() ? nullptr : &found->second;
}

void* VoyCalChart::getExtent(void* input) {
    calls.push_back(input == nullptr ? "view" : "view of something");
    return view ? new (Core::AllocateBusBlock(sizeof *view)) Interface::TrvMapExtent(*view) : nullptr;
}

void* VoyCalChart::setExtent(void* input) {
    const auto& extent = as<Interface::TrvMapExtent>(input);
    calls.push_back(Util::StringUtl::Format("extent %g %g %g %g", extent.first, extent.second, extent.third,
                                            extent.fourth));
    return nullptr;
}

}  // namespace Tarvik::Seaplan::Testing
