// SPDX-License-Identifier: MIT
#include "seaplan/chart/tests/ChartRecording.h"

#include <sstream>

#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>

namespace Tarvik::Seaplan::Testing {

namespace {

template <class Record>
const Record& as(const void* input) {
    return *static_cast<const Record*>(input);
}

std::string refText(const Interface::TrvMapObjectRef& ref) {
    return ref.layer + "/" + ref.type + "/" + ref.id;
}

}  // namespace

ChartRecording::ChartRecording() {
    namespace Bus = Interface::Bus;
    Core::TrvKernel::Instance()->Reset();
    bind<&ChartRecording::addLayer>(Bus::MapAddLayer.name);
    bind<&ChartRecording::addLine>(Bus::MapAddLine.name);
    bind<&ChartRecording::AddLabel>(Bus::MapAddPointLabel.name);
    bind<&ChartRecording::addImage>(Bus::MapAddImage.name);
    bind<&ChartRecording::registerImage>(Bus::MapRegisterImage.name);
    bind<&ChartRecording::deleteObjects>(Bus::MapDeleteObjects.name);
    bind<&ChartRecording::deleteByType>(Bus::MapDeleteObjectsByType.name);
    bind<&ChartRecording::setExtent>(Bus::MapSetExtent.name);
}

ChartRecording::~ChartRecording() {
    Core::TrvKernel::Instance()->Reset();
}

template <auto Method>
void ChartRecording::bind(const char* name) {
    auto& delegate = delegates_.emplace_back();
    delegate.Set<Method>(this);
    Core::TrvKernel::Instance()->CreateTrvService(name, this, "", "", &delegate);
}

void* ChartRecording::addLayer(void* input) {
    layers.push_back(as<Interface::TrvMapLayerParams>(input));
    calls.push_back("layer " + layers.back().layer);
    return nullptr;
}

void* ChartRecording::addLine(void* input) {
    lines.push_back(as<Interface::TrvMapLineParams>(input));
    std::string text = "line " + refText(lines.back().ref);
    for (const auto& point : lines.back().points) {
        text += " " + point;
    }
    calls.push_back(text);
    return nullptr;
}

void* ChartRecording::AddLabel(void* input) {
    labels.push_back(as<Interface::TrvMapPointParams>(input));
    calls.push_back("label " + refText(labels.back().ref) + " " + labels.back().label + " " +
                    labels.back().position);
    return nullptr;
}

void* ChartRecording::addImage(void* input) {
    const auto& image = as<Interface::TrvMapImageParams>(input);
    calls.push_back("image " + refText(image.ref) + " " + image.image + " " + image.position);
    return nullptr;
}

void* ChartRecording::registerImage(void* input) {
    const auto& image = as<Interface::TrvMapImageReg>(input);
    calls.push_back("register " + image.name + " " + image.path);
    return nullptr;
}

void* ChartRecording::deleteObjects(void* input) {
    const auto& list = as<Interface::TrvMapObjectList>(input);
    std::string text = "delete " + list.layer;
    for (int i = 0; i < list.count; ++i) {
        text += " " + refText(list.objects[i]);
    }
    calls.push_back(text);
    return nullptr;
}

void* ChartRecording::deleteByType(void* input) {
    calls.push_back("clear " + refText(as<Interface::TrvMapObjectRef>(input)));
    return nullptr;
}

void* ChartRecording::setExtent(void* input) {
    const auto& extent = as<Interface::TrvMapExtent>(input);
    std::ostringstream text;
    text << "extent " << extent.first << " " << extent.second << " " << extent.third << " " << extent.fourth;
    calls.push_back(text.str());
    return nullptr;
}

}  // namespace Tarvik::Seaplan::Testing
