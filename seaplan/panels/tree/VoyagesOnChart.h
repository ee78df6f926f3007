// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeContext.h"

#include <string>

namespace Tarvik::Seaplan {

/// Keeps one voyage on the chart, plus those that are pinned. Results: 0 or the negative number of the failed
/// step.
class VoyagesOnChart {
  public:
    explicit VoyagesOnChart(TreeContext& context) : c_(context) {}

    int ActivateVoyage(const VoyInfo& voyage);
    /// Pins or unpins a voyage's route. -1 empty id; -2 unknown; -3 no row; -4 no position book; -5, -6 the
    /// server's refusal; -7 the chart.
    int SetPinned(const std::string& vi, bool on);
    /// Marks the voyages of a freshly opened view, unless the marks stand already.
    void MarkAll();

  private:
    void tidyOthers(const std::string& vi);
    int redraw(const VoyInfo& voyage, VoyChartMark& mark);

    TreeContext& c_;
};

}  // namespace Tarvik::Seaplan
