// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <deque>
#include <optional>
#include <string>

#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/PortTable.h"
#include "host/plugins/seamap/widget/ChartWidget.h"

namespace Tarvik::Seamap {

/// The chart on the bus: offers the chart's services from construction to destruction and raises its events.
///
/// Works without a window system too: objects and the extent asked for are then kept and nothing is drawn.
class ChartServices : public Core::TObject {
  public:
    struct Paths {
        std::string ports;
        std::string land;
    };
    explicit ChartServices(Paths paths);
    ~ChartServices() override;
    ChartServices(const ChartServices&) = delete;
    ChartServices& operator=(const ChartServices&) = delete;

    const ChartObjects& Objects() const { return objects_; }
    /// The window, made at the first call; null without a window system.
    ChartWidget* Widget();

    // Handlers of the bus, one for each service.
    void* AddLayer(void* input);
    void* RemoveLayer(void* input);
    void* AddLine(void* input);
    void* AddPointLabel(void* input);
    void* AddImage(void* input);
    void* RegisterImage(void* input);
    void* DeleteObjects(void* input);
    void* DeleteObjectsByType(void* input);
    void* GetExtent(void* input);
    void* SetExtent(void* input);
    void* GetPort(void* input);
    void* GetWidget(void* input);
    void* Command(void* input);

  private:
    struct Binding {
        const char* name = nullptr;
        Core::TEvent delegate;
    };
    template <auto Method>
    void Offer(const char* name);
    void RaiseClick(const ObjectKey& key) const;
    void RaiseCursor(double lon, double lat) const;
    bool Run(const std::string& command);

    Paths paths_;
    ChartObjects objects_;
    PortTable ports_;
    QPointer<ChartWidget> widget_;
    ChartPalette::Theme theme_ = ChartPalette::Theme::Light;
    std::optional<Extent> asked_;   ///< asked for before there was a window
    std::deque<Binding> bindings_;  ///< fixed in place, as the bus keeps their addresses
};

}  // namespace Tarvik::Seamap
