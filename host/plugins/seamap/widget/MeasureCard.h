// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/Measure.h"

class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace Tarvik::Seamap {

/// What the measuring tool has measured, in a corner of the chart, with the kind of track and the speed.
class MeasureCard final : public QFrame {
    Q_OBJECT

  public:
    /// Hidden at first.
    explicit MeasureCard(QWidget* chart);
    /// Shows legs and total in the upper right corner of the chart; hidden while nothing is measured.
    void ShowMeasure(const Measure& measure);
    void ApplyTheme(const ChartPalette& palette);
    /// Texts in the language in force.
    void ApplyTexts();

  signals:
    /// The person has chosen a kind of track and a speed in knots.
    void Chosen(Tarvik::Seamap::Track track, double knots);

  private:
    void Place();

    QLabel* title_;
    QComboBox* track_;
    QDoubleSpinBox* knots_;
    QLabel* legs_;
    QLabel* hint_;
};

}  // namespace Tarvik::Seamap
