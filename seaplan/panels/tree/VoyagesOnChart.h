// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

struct VoyChartMark;
struct VoyInfo;
struct TreeContext;

/// Keeps one voyage on the chart, plus those that are pinned. Results: 0 or the negative number of the failed
/// step.
class VoyagesOnChart {
  public:
    explicit VoyagesOnChart(TreeContext& context) : c_(context) {}

    /// -1 empty id; -2, -3 redrawing; -5 removing; -6 drawing; -4, -7 the vessel's track.
    int ActivateVoyage(const VoyInfo& voyage);
    /// Pins or unpins a voyage's route. -1 empty id; -2 unknown; -3 no row; -4 no position book; -5, -6 the
    /// server's refusal; -7 the chart.
    int SetPinned(const std::string& vi, bool on);
    /// Shows the track of a voyage's vessel. -1 no vessel, -2 no track; with `warn` the person is told.
    int ShowAis(const VoyInfo& voyage, bool warn);
    /// Turns a voyage's AIS display on or off. -1 empty id; -2 unknown; -3 no row; -4, -6 the track; -5, -7
    /// the server's refusal.
    int SetAisShown(const std::string& vi, bool on);
    /// The row's items for a track that is shown or not.
    void ShowAisItems(TreeRow row, bool on);
    /// The next press on this pinned voyage leaves the chart as it is.
    void LeaveAloneOnce(const std::string& vi);
    /// Marks the voyages of a freshly opened view, unless the marks stand already.
    void MarkAll();

  private:
    void TidyOthers(const std::string& vi);
    int Redraw(const VoyInfo& voyage, VoyChartMark& mark);

    TreeContext& c_;
    std::string aisModVoyage_;  ///< voyage last opened for a correction
    bool aisModSkipDone_ = false;
};

}  // namespace Tarvik::Seaplan
