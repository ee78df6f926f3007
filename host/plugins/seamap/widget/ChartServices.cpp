// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartServices.h"

#include <QApplication>
#include <array>
#include <new>

#include <tarvik/core/BusBlock.h>
#include <tarvik/interface/ChartWindow.h>

#include "host/plugins/seamap/core/LandFileSource.h"

namespace Tarvik::Seamap {

namespace {

constexpr const char* kClickPrefix = "TRV_MAP_LCLICK_";

/// The payload as the record that the service's name promises.
template <class Record>
const Record& RecordOf(void* input) {
    return *static_cast<const Record*>(input);
}

}  // namespace

ChartServices::ChartServices(Paths paths) : paths_(std::move(paths)), ports_(paths_.ports) {
    namespace Chart = Interface::Bus;
    Offer<&ChartServices::AddLayer>(Chart::MapAddLayer.name);
    Offer<&ChartServices::RemoveLayer>(Chart::MapRemoveLayer.name);
    Offer<&ChartServices::AddLine>(Chart::MapAddLine.name);
    Offer<&ChartServices::AddPointLabel>(Chart::MapAddPointLabel.name);
    Offer<&ChartServices::AddImage>(Chart::MapAddImage.name);
    Offer<&ChartServices::RegisterImage>(Chart::MapRegisterImage.name);
    Offer<&ChartServices::DeleteObjects>(Chart::MapDeleteObjects.name);
    Offer<&ChartServices::DeleteObjectsByType>(Chart::MapDeleteObjectsByType.name);
    Offer<&ChartServices::GetExtent>(Chart::MapGetExtent.name);
    Offer<&ChartServices::SetExtent>(Chart::MapSetExtent.name);
    Offer<&ChartServices::GetPort>(Chart::MapGetPort.name);
    Offer<&ChartServices::GetWidget>(Bus::Widget.name);
    Offer<&ChartServices::Command>(Bus::Command.name);
}

ChartServices::~ChartServices() {
    auto* kernel = Core::TrvKernel::Instance();
    for (Binding& binding : bindings_) {
        kernel->UnBindTrvService(binding.name, &binding.delegate);
        kernel->DeleteTrvService(binding.name, this);
    }
    // The window draws from the objects held here, so it cannot stay, whoever its parent is. Once the window
    // system is gone it must not be touched any more.
    if (QCoreApplication::instance()) {
        delete widget_.data();
    }
}

ChartWidget* ChartServices::Widget() {
    if (!widget_ && qobject_cast<QApplication*>(QCoreApplication::instance())) {
        widget_ = new ChartWidget(objects_);
        widget_->SetTheme(theme_);
        widget_->SetLand(CoastData(LandFileSource(paths_.land).Load()));
        if (asked_) {
            widget_->ShowExtent(*asked_);
        }
        QObject::connect(widget_, &ChartWidget::ObjectClicked,
                         [this](const ObjectKey& key) { RaiseClick(key); });
        QObject::connect(widget_, &ChartWidget::CursorMoved,
                         [this](double lon, double lat) { RaiseCursor(lon, lat); });
    }
    return widget_;
}

void* ChartServices::AddLayer(void* input) {
    if (input) {
        objects_.AddLayer(RecordOf<Interface::TrvMapLayerParams>(input));
    }
    return nullptr;
}

void* ChartServices::RemoveLayer(void* input) {
    if (input) {
        objects_.RemoveLayer(RecordOf<std::string>(input));
    }
    return nullptr;
}

void* ChartServices::AddLine(void* input) {
    if (input) {
        objects_.AddLine(RecordOf<Interface::TrvMapLineParams>(input));
    }
    return nullptr;
}

void* ChartServices::AddPointLabel(void* input) {
    if (input) {
        objects_.AddLabel(RecordOf<Interface::TrvMapPointParams>(input));
    }
    return nullptr;
}

void* ChartServices::AddImage(void* input) {
    if (input) {
        objects_.AddImage(RecordOf<Interface::TrvMapImageParams>(input));
    }
    return nullptr;
}

void* ChartServices::RegisterImage(void* input) {
    if (!input) {
        return nullptr;
    }
    const auto& image = RecordOf<Interface::TrvMapImageReg>(input);
    objects_.RegisterImage(image.name, image.path);
    return nullptr;
}

void* ChartServices::DeleteObjects(void* input) {
    if (input) {
        objects_.Remove(RecordOf<Interface::TrvMapObjectList>(input));
    }
    return nullptr;
}

void* ChartServices::DeleteObjectsByType(void* input) {
    if (!input) {
        return nullptr;
    }
    const auto& ref = RecordOf<Interface::TrvMapObjectRef>(input);
    objects_.RemoveType(ref.layer, ref.type);
    return nullptr;
}

void* ChartServices::GetExtent(void*) {
    void* block = Core::AllocateBusBlock(sizeof(Interface::TrvMapExtent));
    if (!block) {
        return nullptr;
    }
    const Extent shown = widget_ ? widget_->Shown() : asked_.value_or(Extent());
    return new (block) Interface::TrvMapExtent(shown.Corners());
}

void* ChartServices::SetExtent(void* input) {
    if (!input) {
        return nullptr;
    }
    const auto extent = Extent::FromCorners(RecordOf<Interface::TrvMapExtent>(input));
    if (!extent) {
        return nullptr;
    }
    asked_ = extent;
    if (widget_) {
        widget_->ShowExtent(*extent);
    }
    return nullptr;
}

void* ChartServices::GetPort(void* input) {
    if (!input) {
        return nullptr;
    }
    return const_cast<Interface::TrvMapPort*>(ports_.Find(RecordOf<std::string>(input)));
}

void* ChartServices::GetWidget(void*) {
    return static_cast<QWidget*>(Widget());
}

void* ChartServices::Command(void* input) {
    return input && Run(RecordOf<std::string>(input)) ? input : nullptr;
}

template <auto Method>
void ChartServices::Offer(const char* name) {
    Binding& binding = bindings_.emplace_back();
    binding.name = name;
    binding.delegate.Set<Method>(this);
    auto* kernel = Core::TrvKernel::Instance();
    kernel->CreateTrvService(name, this, "", "", nullptr);
    kernel->BindTrvService(name, &binding.delegate);
}

void ChartServices::RaiseClick(const ObjectKey& key) const {
    const std::string name = kClickPrefix + key.type;
    Interface::Raise(Interface::Event<const std::string>{name.c_str()}, &key.id);
}

void ChartServices::RaiseCursor(double lon, double lat) const {
    const std::array<double, 2> place{lon, lat};
    Interface::Raise(Bus::Cursor, place.data());
}

bool ChartServices::Run(const std::string& command) {
    constexpr std::string_view kTheme = "theme ";
    if (command.starts_with(kTheme)) {
        const auto theme = Skin::FindTheme(std::string_view(command).substr(kTheme.size()));
        if (!theme) {
            return false;
        }
        theme_ = *theme;
        if (widget_) {
            widget_->SetTheme(theme_);
        }
        return true;
    }
    if (command != "zoomin" && command != "zoomout" && command != "fit") {
        return false;
    }
    if (!widget_) {
        return true;
    }
    if (command == "fit") {
        widget_->FitAll();
    } else {
        widget_->ZoomSteps(command == "zoomin" ? 1 : -1);
    }
    return true;
}

}  // namespace Tarvik::Seamap
