// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <optional>
#include <string>
#include <string_view>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ChartRecords.h>

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

  private:
    void OfferObjects();
    void OfferView();
    Interface::TrvMapExtent* GetExtent() const;
    void SetExtent(const Interface::TrvMapExtent& corners);
    /// Gives the window the names of the language in force.
    void ShowNames();
    const std::string* Command(const std::string& command);
    void TakePort(const ChartName& port);
    void RaiseCursor(double lon, double lat) const;
    bool Run(const std::string& command);
    bool TakeTheme(std::string_view name);
    bool TakePart(std::string_view name, bool shown);
    bool RunOnWindow(std::string_view command);

    Paths paths_;
    ChartObjects objects_;
    PortTable ports_;
    QPointer<ChartWidget> widget_;
    ChartPalette::Theme theme_ = ChartPalette::Theme::Light;
    ChartParts parts_;             ///< of the window before there is one
    std::optional<Extent> asked_;  ///< asked for before there was a window
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Seamap
