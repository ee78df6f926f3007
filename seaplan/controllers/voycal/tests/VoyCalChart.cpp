// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/tests/VoyCalChart.h"

#include <algorithm>
#include <iterator>
#include <new>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/util/StringUtl.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Seaplan::Testing {

namespace {

template <class Record>
const Record& As(const void* input) {
    return *static_cast<const Record*>(input);
}

}  // namespace

VoyCalChart::VoyCalChart() {
    namespace Bus = Interface::Bus;
    Core::BusTesting::ForgetAll();
    Bind<&VoyCalChart::AddLayer>(Bus::MapAddLayer.name);
    Bind<&VoyCalChart::RemoveLayer>(Bus::MapRemoveLayer.name);
    Bind<&VoyCalChart::AddLine>(Bus::MapAddLine.name);
    Bind<&VoyCalChart::AddLabel>(Bus::MapAddPointLabel.name);
    Bind<&VoyCalChart::DeleteByType>(Bus::MapDeleteObjectsByType.name);
    Bind<&VoyCalChart::GetPort>(Bus::MapGetPort.name);
    Bind<&VoyCalChart::GetExtent>(Bus::MapGetExtent.name);
    Bind<&VoyCalChart::SetExtent>(Bus::MapSetExtent.name);
}

VoyCalChart::~VoyCalChart() {
    Core::BusTesting::ForgetAll();
}

template <auto Method>
void VoyCalChart::Bind(const char* name) {
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

void* VoyCalChart::AddLayer(void* input) {
    calls.push_back("layer " + As<Interface::TrvMapLayerParams>(input).layer);
    return nullptr;
}

void* VoyCalChart::RemoveLayer(void* input) {
    calls.push_back("remove " + As<std::string>(input));
    return nullptr;
}

void* VoyCalChart::AddLine(void* input) {
    lines.push_back(As<Interface::TrvMapLineParams>(input));
    calls.push_back("line " + lines.back().ref.layer + "/" + lines.back().ref.type);
    return nullptr;
}

void* VoyCalChart::AddLabel(void* input) {
    labels.push_back(As<Interface::TrvMapPointParams>(input));
    const auto& label = labels.back();
    calls.push_back("label " + label.ref.layer + "/" + label.ref.type + "/" + label.ref.id + " " +
                    label.label + " " + label.position);
    return nullptr;
}

void* VoyCalChart::DeleteByType(void* input) {
    const auto& ref = As<Interface::TrvMapObjectRef>(input);
    calls.push_back("clear " + ref.layer + "/" + ref.type);
    return nullptr;
}

void* VoyCalChart::GetPort(void* input) {
    calls.push_back("port " + As<std::string>(input));
    const auto found = ports.find(As<std::string>(input));
    return found == ports.end() ? nullptr : &found->second;
}

void* VoyCalChart::GetExtent(void* input) {
    calls.push_back(input == nullptr ? "view" : "view of something");
    return view ? new (Core::AllocateBusBlock(sizeof *view)) Interface::TrvMapExtent(*view) : nullptr;
}

void* VoyCalChart::SetExtent(void* input) {
    const auto& extent = As<Interface::TrvMapExtent>(input);
    calls.push_back(Util::StringUtl::Format("extent %g %g %g %g", extent.first, extent.second, extent.third,
                                            extent.fourth));
    return nullptr;
}

}  // namespace Tarvik::Seaplan::Testing
