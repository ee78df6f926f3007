// SPDX-License-Identifier: MIT
#include "seaplan/chart/tests/ChartRecording.h"

#include <sstream>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Seaplan::Testing {

namespace {

template <class Record>
const Record& As(const void* input) {
    return *static_cast<const Record*>(input);
}

std::string RefText(const Interface::TrvMapObjectRef& ref) {
    return ref.layer + "/" + ref.type + "/" + ref.id;
}

}  // namespace

ChartRecording::ChartRecording() {
    namespace Bus = Interface::Bus;
    Core::BusTesting::ForgetAll();
    Bind<&ChartRecording::AddLayer>(Bus::MapAddLayer.name);
    Bind<&ChartRecording::AddLine>(Bus::MapAddLine.name);
    Bind<&ChartRecording::AddLabel>(Bus::MapAddPointLabel.name);
    Bind<&ChartRecording::AddImage>(Bus::MapAddImage.name);
    Bind<&ChartRecording::RegisterImage>(Bus::MapRegisterImage.name);
    Bind<&ChartRecording::DeleteObjects>(Bus::MapDeleteObjects.name);
    Bind<&ChartRecording::DeleteByType>(Bus::MapDeleteObjectsByType.name);
    Bind<&ChartRecording::SetExtent>(Bus::MapSetExtent.name);
}

ChartRecording::~ChartRecording() {
    Core::BusTesting::ForgetAll();
}

template <auto Method>
void ChartRecording::Bind(const char* name) {
    auto& delegate = delegates_.emplace_back();
    delegate.Set<Method>(this);
    Core::TrvKernel::Instance()->CreateTrvService(name, this, "", "", &delegate);
}

void* ChartRecording::AddLayer(void* input) {
    layers.push_back(As<Interface::TrvMapLayerParams>(input));
    calls.push_back("layer " + layers.back().layer);
    return nullptr;
}

void* ChartRecording::AddLine(void* input) {
    lines.push_back(As<Interface::TrvMapLineParams>(input));
    std::string text = "line " + RefText(lines.back().ref);
    for (const auto& point : lines.back().points) {
        text += " " + point;
    }
    calls.push_back(text);
    return nullptr;
}

void* ChartRecording::AddLabel(void* input) {
    labels.push_back(As<Interface::TrvMapPointParams>(input));
    calls.push_back("label " + RefText(labels.back().ref) + " " + labels.back().label + " " +
                    labels.back().position);
    return nullptr;
}

void* ChartRecording::AddImage(void* input) {
    const auto& image = As<Interface::TrvMapImageParams>(input);
    calls.push_back("image " + RefText(image.ref) + " " + image.image + " " + image.position);
    return nullptr;
}

void* ChartRecording::RegisterImage(void* input) {
    const auto& image = As<Interface::TrvMapImageReg>(input);
    calls.push_back("register " + image.name + " " + image.path);
    return nullptr;
}

void* ChartRecording::DeleteObjects(void* input) {
    const auto& list = As<Interface::TrvMapObjectList>(input);
    std::string text = "delete " + list.layer;
    for (int i = 0; i < list.count; ++i) {
        text += " " + RefText(list.objects[i]);
    }
    calls.push_back(text);
    return nullptr;
}

void* ChartRecording::DeleteByType(void* input) {
    calls.push_back("clear " + RefText(As<Interface::TrvMapObjectRef>(input)));
    return nullptr;
}

void* ChartRecording::SetExtent(void* input) {
    const auto& extent = As<Interface::TrvMapExtent>(input);
    std::ostringstream text;
    text << "extent " << extent.first << " " << extent.second << " " << extent.third << " " << extent.fourth;
    calls.push_back(text.str());
    return nullptr;
}

}  // namespace Tarvik::Seaplan::Testing
