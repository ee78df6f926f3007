// SPDX-License-Identifier: MIT
#include "tests/golden/voyages/ChartLog.h"

#include <fmt/format.h>

#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>
#include <tarvik/util/FileUtl.h>

namespace Tarvik::Golden {

namespace {

namespace Bus = Interface::Bus;

template <class T>
const T& as(void* input) {
    return *static_cast<const T*>(input);
}

std::string refText(const Interface::TrvMapObjectRef& ref) {
    return fmt::format("layer={} type={} id={}", ref.layer, ref.type, ref.id);
}

}  // namespace

template <auto Method>
void ChartLog::bind(const char* name) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    auto event = std::make_unique<Core::TEvent>();
    kernel->CreateTrvService(name, this, "", "", nullptr);
    event->Set<Method>(this);
    kernel->BindTrvService(name, event.get());
    bindings_.emplace_back(name, std::move(event));
}

ChartLog::ChartLog() {
    bind<&ChartLog::onAddLayer>(Bus::MapAddLayer.name);
    bind<&ChartLog::onRemoveLayer>(Bus::MapRemoveLayer.name);
    bind<&ChartLog::onAddLine>(Bus::MapAddLine.name);
    bind<&ChartLog::onAddLabel>(Bus::MapAddPointLabel.name);
    bind<&ChartLog::onAddImage>(Bus::MapAddImage.name);
    bind<&ChartLog::onRegisterImage>(Bus::MapRegisterImage.name);
    bind<&ChartLog::onDeleteObjects>(Bus::MapDeleteObjects.name);
    bind<&ChartLog::onDeleteType>(Bus::MapDeleteObjectsByType.name);
    bind<&ChartLog::onSetExtent>(Bus::MapSetExtent.name);
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

void ChartLog::write(const char* service, const std::string& words) {
    text_ += service;
    text_ += " " + words + "\n";
}

void* ChartLog::onAddLayer(void* input) {
    const auto& layer = as<Interface::TrvMapLayerParams>(input);
    write(Bus::MapAddLayer.name, fmt::format("layer={}", layer.layer));
    return nullptr;
}

void* ChartLog::onRemoveLayer(void* input) {
    write(Bus::MapRemoveLayer.name, fmt::format("layer={}", as<std::string>(input)));
    return nullptr;
}

void* ChartLog::onAddLine(void* input) {
    const auto& line = as<Interface::TrvMapLineParams>(input);
    write(Bus::MapAddLine.name,
          fmt::format("{} colour=0x{:06X} width={} style={} points={}", refText(line.ref), line.colour,
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

void* ChartLog::onAddLabel(void* input) {
    const auto& label = as<Interface::TrvMapPointParams>(input);
    write(Bus::MapAddPointLabel.name,
          fmt::format("{} shape={} colour=0x{:06X} size={} at={} \"{}\"", refText(label.ref), label.shape,
                      label.colour, label.size, label.position, label.label));
    return nullptr;
}

void* ChartLog::onAddImage(void* input) {
    const auto& image = as<Interface::TrvMapImageParams>(input);
    write(Bus::MapAddImage.name,
          fmt::format("{} image={} at={}", refText(image.ref), image.image, image.position));
    return nullptr;
}

void* ChartLog::onRegisterImage(void* input) {
    const auto& image = as<Interface::TrvMapImageReg>(input);
    const std::string folder = Util::FileUtl::GetCurrentAppDirectory();
    const bool inside = image.path.compare(0, folder.size(), folder) == 0;
    write(Bus::MapRegisterImage.name,
          fmt::format("name={} path={}", image.name, inside ? image.path.substr(folder.size()) : image.path));
    return nullptr;
}

void* ChartLog::onDeleteObjects(void* input) {
    const auto& list = as<Interface::TrvMapObjectList>(input);
    std::string words = fmt::format("layer={}", list.layer);
    for (std::int32_t i = 0; i < list.count; ++i) {
        words += fmt::format(" {}:{}", list.objects[i].type, list.objects[i].id);
    }
    write(Bus::MapDeleteObjects.name, words);
    return nullptr;
}

void* ChartLog::onDeleteType(void* input) {
    const auto& ref = as<Interface::TrvMapObjectRef>(input);
    write(Bus::MapDeleteObjectsByType.name, fmt::format("layer={} type={}", ref.layer, ref.type));
    return nullptr;
}

void* ChartLog::onSetExtent(void* input) {
    const auto& extent = as<Interface::TrvMapExtent>(input);
    write(Bus::MapSetExtent.name, fmt::format("{:.4f} {:.4f} {:.4f} {:.4f}", extent.first, extent.second,
                                              extent.third, extent.fourth));
    return nullptr;
}

}  // namespace Tarvik::Golden
