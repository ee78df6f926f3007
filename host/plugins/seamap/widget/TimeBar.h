// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QFrame>
#include <QSlider>
#include <optional>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/VoyagePlans.h"

class QLabel;
class QToolButton;

namespace Tarvik::Seamap {

/// A slider whose handle comes at once to where it is pressed, and is dragged on from there; the window
/// system's own goes a page towards it.
class PressedSlider final : public QSlider {
    Q_OBJECT

  public:
    using QSlider::QSlider;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

/// The bar at the chart's lower edge with which a person chooses the time for which the chart shows the ships
/// of its voyages, between their first departure and last arrival.
class TimeBar final : public QFrame {
    Q_OBJECT

  public:
    /// Hidden at first.
    explicit TimeBar(QWidget* chart);
    /// Opens it at the present time, as far as the plans reach, or closes it.
    void Turn(bool open);
    /// Takes the times of the plans; without any nothing can be chosen.
    void TakePlans(const VoyagePlans& plans);
    /// The time on show; nothing while the bar is closed or there is no plan.
    std::optional<PlanTime> Time() const;
    /// Goes so many hours on, back when negative, as far as the plans reach.
    void Step(int hours);
    /// Lets the time run, or stops it.
    void TogglePlay();
    /// To its place behind a change of the chart's size.
    void Place();
    void ApplyTheme(const ChartPalette& palette);
    /// Texts in the language in force.
    void ApplyTexts();

  signals:
    /// The time on show is another one, or there is none any more.
    void Changed();

  protected:
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ShowTime();

    std::optional<VoyagePlans::Span> times_;
    QSlider* slider_;
    QToolButton* back_;
    QToolButton* play_;
    QToolButton* on_;
    QToolButton* close_;
    QLabel* text_;
    QBasicTimer running_;
};

}  // namespace Tarvik::Seamap
