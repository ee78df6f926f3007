// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/Outcome.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

struct VoyChartMark;
struct VoyInfo;
struct TreeContext;

/// What the chart's share of the tree fails at.
enum class OnChartStep { Id, Voyage, Row, PositionBook, Server, Remove, Draw, Vessel, Track };
using OnChartOutcome = Outcome<OnChartStep>;

/// Keeps one voyage on the chart, plus those that are pinned.
class VoyagesOnChart {
  public:
    explicit VoyagesOnChart(TreeContext& context) : c_(context) {}

    /// Draws a voyage and its vessel's track where these are on, and takes the others off that are not
    /// pinned.
    OnChartOutcome ActivateVoyage(const VoyInfo& voyage);
    /// Pins or unpins a voyage's route. One without a position book cannot be pinned.
    OnChartOutcome SetPinned(const std::string& vi, bool on);
    /// Shows the track of a voyage's vessel; with `warn` the person is told why there is none.
    OnChartOutcome ShowAis(const VoyInfo& voyage, bool warn);
    /// Turns a voyage's AIS display on or off, here and on the server.
    OnChartOutcome SetAisShown(const std::string& vi, bool on);
    /// The row's items for a track that is shown or not.
    void ShowAisItems(TreeRow row, bool on);
    /// Draws a voyage that was on the chart, and the pinned ones, after a panel that opens over them has
    /// emptied it.
    void DrawAgain(const std::string& vi);
    /// The next press on this pinned voyage leaves the chart as it is.
    void LeaveAloneOnce(const std::string& vi);
    /// Marks the voyages of a freshly opened view, unless the marks stand already.
    void MarkAll();

  private:
    struct Shown {
        VoyInfo* voyage = nullptr;
        TreeRow row = kNoRow;
    };
    OnChartOutcome Find(const std::string& vi, Shown& out) const;
    void TidyOthers(const std::string& vi);
    OnChartOutcome ShowTrackOf(const VoyInfo& voyage);
    OnChartOutcome TurnAis(VoyInfo& voyage, bool on);
    OnChartOutcome Redraw(const VoyInfo& voyage, VoyChartMark& mark);

    TreeContext& c_;
    std::string aisModVoyage_;  ///< voyage last opened for a correction
    bool aisModSkipDone_ = false;
};

}  // namespace Tarvik::Seaplan
