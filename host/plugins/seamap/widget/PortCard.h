// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>

#include "host/plugins/seamap/core/ChartNames.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/MercatorView.h"

namespace Tarvik::Seamap {

/// What is known of a port, on a small card beside its place on the chart.
class PortCard final : public QLabel {
  public:
    /// Hidden at first; a press on the card hides it.
    explicit PortCard(QWidget* chart);
    /// Shows a port's card beside a pixel of the chart, whole where it has room.
    void ShowPort(const ChartName& port, PixelPoint place);
    void ApplyTheme(const ChartPalette& palette);
    /// Name, UN/LOCODE and country, position, a line each; what is not known is left out.
    static QString TextOf(const ChartName& port);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace Tarvik::Seamap
