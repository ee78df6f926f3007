// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartServices.h"

#include <QApplication>
#include <array>
#include <functional>
#include <future>
#include <new>
#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/DragContract.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/PlanContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/LoadString.h>
#include <tarvik/util/StringUtl.h>

#include "host/plugins/seamap/core/LandSource.h"
#include "host/plugins/seamap/widget/ChartTools.h"

namespace Tarvik::Seamap {

namespace Bus = Interface::Bus;

namespace {

/// A text of the language in force; empty when it has none.
std::string TextOf(const char* section, const char* key) {
    const Interface::LanguageSource* texts = Interface::LanguageSource::Current();
    if (texts == nullptr) {
        return {};
    }
    const std::u16string table = Util::StringUtl::TranslateString(std::string(section));
    const auto text = texts->Find(table, table, Util::StringUtl::TranslateString(std::string(key)));
    return text ? Util::StringUtl::TranslateString(*text) : std::string();
}

Interface::ChartPlace PlaceOnBus(const GeoPoint& point) {
    return {point.x, point.y};
}

}  // namespace

ChartServices::ChartServices(Paths paths) : paths_(std::move(paths)), ports_(paths_.ports) {
    OfferObjects();
    OfferView();
}

void ChartServices::OfferObjects() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::MapAddLayer,
                         [this](const Interface::TrvMapLayerParams& layer) { objects_.AddLayer(layer); }));
    bindings_.Keep(
        Offer(Bus::MapRemoveLayer, [this](const std::string& layer) { objects_.RemoveLayer(layer); }));
    bindings_.Keep(
        Offer(Bus::MapAddLine, [this](const Interface::TrvMapLineParams& line) { objects_.AddLine(line); }));
    bindings_.Keep(Offer(Bus::MapAddPointLabel,
                         [this](const Interface::TrvMapPointParams& point) { objects_.AddLabel(point); }));
    bindings_.Keep(Offer(Bus::MapAddImage,
                         [this](const Interface::TrvMapImageParams& image) { objects_.AddImage(image); }));
    bindings_.Keep(Offer(Bus::MapRegisterImage, [this](const Interface::TrvMapImageReg& image) {
        objects_.RegisterImage(image.name, image.path);
    }));
    bindings_.Keep(Offer(Bus::MapSetShips,
                         [this](const Interface::TrvMapShips& ships) { objects_.Ships().Set(ships); }));
    bindings_.Keep(
        Offer(Bus::MapSetPlan, [this](const Interface::TrvMapPlan& plan) { objects_.Plans().Set(plan); }));
    bindings_.Keep(Offer(Bus::MapDeleteObjects,
                         [this](const Interface::TrvMapObjectList& list) { objects_.Remove(list); }));
    bindings_.Keep(Offer(Bus::MapDeleteObjectsByType, [this](const Interface::TrvMapObjectRef& ref) {
        objects_.RemoveType(ref.layer, ref.type);
    }));
}

void ChartServices::OfferView() {
    using Interface::Offer;
    bindings_.Keep(Offer(Bus::MapStandOut, [this](const std::string& id) { objects_.StandOut(id); }));
    bindings_.Keep(Offer(Bus::MapGetExtent, this, &ChartServices::GetExtent));
    bindings_.Keep(Offer(Bus::MapSetExtent, this, &ChartServices::SetExtent));
    bindings_.Keep(Offer(Bus::MapGetPort, [this](const std::string& id) { return ports_.Find(id); }));
    bindings_.Keep(Offer(Bus::ChartWindow, this, &ChartServices::Widget));
    bindings_.Keep(Offer(Bus::ChartCommand, this, &ChartServices::Command));
    bindings_.Keep(Interface::Subscribe(Bus::SwitchLanguage, this, &ChartServices::ShowNames));
    bindings_.Keep(Interface::Subscribe(Bus::PortsChanged, [this] {
        ports_.Forget();
        ShowNames();
    }));
}

ChartServices::~ChartServices() {
    bindings_.Withdraw();
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
        widget_->ShowParts(parts_);
        // The window is made while the land is read, which takes as long.
        widget_->Change([this](ChartScene& scene) {
            scene.SetLand(std::async(
                std::launch::async, [path = paths_.land] { return CoastData(LandFileSource(path).Load()); }));
        });
        ShowNames();
        if (asked_) {
            widget_->ShowExtent(*asked_);
        }
        QObject::connect(widget_, &ChartWidget::ObjectClicked,
                         [](const ObjectKey& key) { Interface::RaiseClick(key.type, key.id); });
        widget_->SetDragged([](const ObjectKey& key) { return Interface::IsDragged(key.type); });
        QObject::connect(widget_, &ChartWidget::ObjectDragged,
                         [](const ObjectKey& key, const GeoPoint& from, const GeoPoint& to) {
                             Interface::TellDrag(key.type, {key.id, PlaceOnBus(from), PlaceOnBus(to)});
                         });
        QObject::connect(widget_, &ChartWidget::PortClicked, widget_,
                         [this](const ChartName& port) { TakePort(port); });
        QObject::connect(widget_, &ChartWidget::PartTurned, [](const std::string& part, bool shown) {
            const Interface::ChartPart turned{part, shown};
            Interface::Raise(Bus::ChartPartTurned, &turned);
        });
        QObject::connect(widget_, &ChartWidget::CursorMoved,
                         [this](double lon, double lat) { RaiseCursor(lon, lat); });
    }
    return widget_;
}

Interface::TrvMapExtent* ChartServices::GetExtent() const {
    void* block = Core::AllocateBusBlock(sizeof(Interface::TrvMapExtent));
    if (!block) {
        return nullptr;
    }
    const Extent shown = widget_ ? widget_->Shown() : asked_.value_or(Extent());
    return new (block) Interface::TrvMapExtent(shown.Corners());
}

void ChartServices::SetExtent(const Interface::TrvMapExtent& corners) {
    const auto extent = Extent::FromCorners(corners);
    if (!extent) {
        return;
    }
    asked_ = extent;
    if (widget_) {
        widget_->ShowExtent(*extent);
    }
}

void ChartServices::ShowNames() {
    if (widget_) {
        widget_->SetNames(NamesOfChart(TextOf, ports_.Places()));
    }
}

const std::string* ChartServices::Command(const std::string& command) {
    return Run(command) ? &command : nullptr;
}

/// A port goes into the distance table while that is open; otherwise its card tells of it.
void ChartServices::TakePort(const ChartName& port) {
    const bool* takes = Interface::Call(Bus::TakesPortNames);
    if (takes != nullptr && *takes) {
        Interface::Call(Bus::AddPortName, &port.port);
    } else {
        widget_->ShowCard(port);
    }
}

void ChartServices::RaiseCursor(double lon, double lat) const {
    const Interface::ChartPlace place{lon, lat};
    Interface::Raise(Bus::ChartCursor, &place);
}

bool ChartServices::Run(const std::string& command) {
    const std::size_t blank = command.find(' ');
    const std::string_view verb = std::string_view(command).substr(0, blank);
    if (blank == std::string::npos) {
        return RunOnWindow(verb);
    }
    const std::string_view what = std::string_view(command).substr(blank + 1);
    if (verb == "theme") {
        return TakeTheme(what);
    }
    return (verb == "show" || verb == "hide") && TakePart(what, verb == "show");
}

bool ChartServices::TakeTheme(std::string_view name) {
    const auto theme = Skin::FindTheme(name);
    if (!theme) {
        return false;
    }
    theme_ = *theme;
    if (widget_) {
        widget_->SetTheme(theme_);
    }
    return true;
}

bool ChartServices::TakePart(std::string_view name, bool shown) {
    const auto part = FindChartPart(name);
    if (!part) {
        return false;
    }
    if (widget_) {
        parts_ = widget_->Parts();
    }
    parts_.*part->part = shown;
    if (widget_) {
        widget_->ShowParts(parts_);
    }
    return true;
}

bool ChartServices::RunOnWindow(std::string_view command) {
    const std::array<std::pair<std::string_view, std::function<void(ChartWidget&)>>, 5> known{
        {{"fit", [](ChartWidget& chart) { chart.FitAll(); }},
         {"zoomin", [](ChartWidget& chart) { chart.ZoomSteps(1); }},
         {"zoomout", [](ChartWidget& chart) { chart.ZoomSteps(-1); }},
         {"goto", [](ChartWidget& chart) { chart.Tools().OpenGoTo(); }},
         {"timeslider", [](ChartWidget& chart) { chart.Tools().ToggleTime(); }}}};
    for (const auto& [name, run] : known) {
        if (name == command) {
            if (widget_) {
                run(*widget_);
            }
            return true;
        }
    }
    return false;
}

}  // namespace Tarvik::Seamap
