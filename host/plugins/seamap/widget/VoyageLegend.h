// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <cstddef>
#include <vector>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/VoyagePlans.h"

class QLabel;

namespace Tarvik::Seamap {

/// The card that tells which voyage has which colour, at the chart's right edge. A name is a link that stands
/// for a click on the voyage's ship.
class VoyageLegend final : public QFrame {
    Q_OBJECT

  public:
    /// So many voyages are named; of others only the number is told.
    static constexpr std::size_t kMost = 12;

    /// Hidden at first.
    explicit VoyageLegend(QWidget* chart);
    /// Shows the voyages by the number of their colour.
    void Show(const VoyagePlans& plans, const ChartPalette& palette);
    /// To its place behind a change of the chart's size.
    void Place();
    void ApplyTheme(const ChartPalette& palette);

  signals:
    /// A name was pressed: the object that the click stands for.
    void Chosen(const Tarvik::Seamap::ObjectKey& key);

  private:
    void Choose(const QString& link);

    std::vector<ObjectKey> ships_;  ///< in the order of the names
    QLabel* text_;
};

}  // namespace Tarvik::Seamap
