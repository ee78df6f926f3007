// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <memory>
#include <optional>
#include <vector>

#include "host/plugins/seamap/core/Measure.h"
#include "host/plugins/seamap/core/PortFinder.h"
#include "host/plugins/seamap/widget/MeasureLayer.h"

class QMenu;
class QPainter;

namespace Tarvik::Seamap {

class ChartWidget;
class GoToBar;
class MeasureCard;
class TimeBar;
class VoyageLegend;

/// What a person does on the chart beside looking at it: its menu, measuring, going to a place, and showing
/// or hiding its parts.
class ChartTools : public QObject {
    Q_OBJECT

  public:
    /// The chart, whose child this is, must be made as far as it is asked here.
    explicit ChartTools(ChartWidget& chart);
    ~ChartTools() override;

    /// The ports that can be gone to and that are near, in the language in force; texts are read anew.
    void SetNames(const std::vector<ChartName>& names);
    void ApplyTheme();
    /// Opens the menu of a place at a point of the screen.
    void OpenMenu(GeoPoint place, QPoint at);
    /// Opens the field in which a position or a port is typed.
    void OpenGoTo();
    /// Begins to measure at a place.
    void MeasureFrom(GeoPoint place);
    const Measure& Measured() const { return measure_; }
    /// Opens the bar with which the time of the ships of voyages is chosen, or closes it.
    void ToggleTime();
    /// The plans of voyages may have changed.
    void TakePlans();
    /// The parts of the chart may have changed.
    void TakeParts();

    /// A click on the chart; true when the measuring tool has taken it.
    bool TakeClick(GeoPoint place);
    void TakePointer(std::optional<GeoPoint> place);
    /// Escape ends what is under way, Backspace takes the last point back, T opens the time bar, and while it
    /// is open comma, full stop and Space step and run; false for a key without use.
    bool TakeKey(int key);
    void Draw(QPainter& painter);
    /// Moves what floats over the chart to its place behind a change of size.
    void Place();

  private:
    void AddCopies(QMenu& menu, GeoPoint place);
    void AddNearest(QMenu& menu, GeoPoint place);
    /// Where the client takes own ports.
    void AddOwnPort(QMenu& menu, GeoPoint place);
    void AddParts(QMenu& menu);
    void GoTo(const Destination& place);
    void Refresh();
    bool TakeTimeKey(int key);

    ChartWidget& chart_;
    std::unique_ptr<PortFinder> finder_;
    Measure measure_;
    std::optional<GeoPoint> pointer_;
    std::optional<GeoPoint> mark_;  ///< the bare position that was gone to
    MeasureLayer layer_;
    MeasureCard* card_;
    GoToBar* goTo_;
    TimeBar* time_;
    VoyageLegend* legend_;
};

}  // namespace Tarvik::Seamap
