// SPDX-License-Identifier: MIT
#include "tests/golden/voyages/ChartLog.h"

#include <fmt/format.h>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/util/FileUtl.h>

namespace Tarvik::Golden {

namespace {

namespace Bus = Interface::Bus;

template <class T>
const T& As(void* input) {
    return *static_cast<const T*>(input);
}

std::string RefText(const Interface::TrvMapObjectRef& ref) {
    return fmt::format("layer={} type={} id={}", ref.layer, ref.type, ref.id);
}

}  // namespace

template <auto Method>
void ChartLog::Bind(const char* name) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    auto event = std::make_unique<Core::TEvent>();
    kernel->CreateTrvService(name, this, "", "", nullptr);
    event->Set<Method>(this);
    kernel->BindTrvService(name, event.get());
    bindings_.emplace_back(name, std::move(event));
}

ChartLog::ChartLog() {
    Bind<&ChartLog::OnAddLayer>(Bus::MapAddLayer.name);
    Bind<&ChartLog::OnRemoveLayer>(Bus::MapRemoveLayer.name);
    Bind<&ChartLog::OnAddLine>(Bus::MapAddLine.name);
    Bind<&ChartLog::OnAddLabel>(Bus::MapAddPointLabel.name);
    Bind<&ChartLog::OnAddImage>(Bus::MapAddImage.name);
    Bind<&ChartLog::OnRegisterImage>(Bus::MapRegisterImage.name);
    Bind<&ChartLog::OnDeleteObjects>(Bus::MapDeleteObjects.name);
    Bind<&ChartLog::OnDeleteType>(Bus::MapDeleteObjectsByType.name);
    Bind<&ChartLog::OnSetExtent>(Bus::MapSetExtent.name);
}

ChartLog::~ChartLog() {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    for (auto binding = bindings_.rbegin(); binding != bindings_.rend(); ++binding) {
        kernel->UnBindTrvService(binding->first.c_str(), binding->second.get());
        kernel->DeleteTrvService(binding->first.c_str(), this);
    }
}

void ChartLog::Heading(const std::string& text) {
    text_ += (text_.empty() ? "== " : "\n== ") + text + "\n";
}

void ChartLog::Write(const char* service, const std::string& words) {
    text_ += service;
    text_ += " " + words + "\n";
}

void* ChartLog::OnAddLayer(void* input) {
    const auto& layer = As<Interface::TrvMapLayerParams>(input);
    Write(Bus::MapAddLayer.name, fmt::format("layer={}", layer.layer));
    return nullptr;
}

void* ChartLog::OnRemoveLayer(void* input) {
    Write(Bus::MapRemoveLayer.name, fmt::format("layer={}", As<std::string>(input)));
    return nullptr;
}

void* ChartLog::OnAddLine(void* input) {
    const auto& line = As<Interface::TrvMapLineParams>(input);
    Write(Bus::MapAddLine.name,
          fmt::format("{} colour=0x{:06X} width={} style={} points={}", RefText(line.ref), line.colour,
                      line.width, line.style, line.points.size()));
    constexpr std::size_t kInARow = 6;
    for (std::size_t i = 0; i < line.points.size(); ++i) {
        text_ += i % kInARow == 0 ? "  " : " ";
        text_ += line.points[i];
        if (i % kInARow == kInARow - 1 || i + 1 == line.points.size()) {
            text_ += '\n';
        }
    }
    return nullptr;
}

void* ChartLog::OnAddLabel(void* input) {
    const auto& label = As<Interface::TrvMapPointParams>(input);
    Write(Bus::MapAddPointLabel.name,
          fmt::format("{} shape={} colour=0x{:06X} size={} at={} \"{}\"", RefText(label.ref), label.shape,
                      label.colour, label.size, label.position, label.label));
    return nullptr;
}

void* ChartLog::OnAddImage(void* input) {
    const auto& image = As<Interface::TrvMapImageParams>(input);
    Write(Bus::MapAddImage.name,
          fmt::format("{} image={} at={}", RefText(image.ref), image.image, image.position));
    return nullptr;
}

void* ChartLog::OnRegisterImage(void* input) {
    const auto& image = As<Interface::TrvMapImageReg>(input);
    const std::string folder = Util::FileUtl::GetCurrentAppDirectory();
    const bool inside = image.path.compare(0, folder.size(), folder) == 0;
    Write(Bus::MapRegisterImage.name,
          fmt::format("name={} path={}", image.name, inside ? image.path.substr(folder.size()) : image.path));
    return nullptr;
}

void* ChartLog::OnDeleteObjects(void* input) {
    const auto& list = As<Interface::TrvMapObjectList>(input);
    std::string words = fmt::format("layer={}", list.layer);
    for (std::int32_t i = 0; i < list.count; ++i) {
        words += fmt::format(" {}:{}", list.objects[i].type, list.objects[i].id);
    }
    Write(Bus::MapDeleteObjects.name, words);
    return nullptr;
}

void* ChartLog::OnDeleteType(void* input) {
    const auto& ref = As<Interface::TrvMapObjectRef>(input);
    Write(Bus::MapDeleteObjectsByType.name, fmt::format("layer={} type={}", ref.layer, ref.type));
    return nullptr;
}

void* ChartLog::OnSetExtent(void* input) {
    const auto& extent = As<Interface::TrvMapExtent>(input);
    Write(Bus::MapSetExtent.name, fmt::format("{:.4f} {:.4f} {:.4f} {:.4f}", extent.first, extent.second,
                                              extent.third, extent.fourth));
    return nullptr;
}

}  // namespace Tarvik::Golden
