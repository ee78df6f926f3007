// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QToolButton>
#include <QWidget>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/portcall/PortCallView.h"

namespace Tarvik::Seaplan {

/// The line below the table: average speed, total distance and time, each with a button that opens a menu of
/// its units, and the zone of the times.
class PortCallSummary final : public QWidget {
  public:
    explicit PortCallSummary(QWidget* parent);

    struct Reports {
        /// A menu opens; the units that it offers.
        std::function<std::vector<std::string>(UnitKind)> menuOpens;
        std::function<void(UnitKind, const std::string&)> unitChosen;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    void ShowState(const PortCallState& state);
    void ApplyTexts();
    void ApplySkin();

  private:
    struct Figure {
        UnitKind kind = UnitKind::None;
        QLabel* caption = nullptr;
        QLabel* value = nullptr;
        QToolButton* unit = nullptr;
    };
    Figure MakeFigure(const char* name, UnitKind kind);
    void OpenMenu(const Figure& figure);

    Reports reports_;
    std::array<Figure, 3> figures_;  ///< speed, distance, time
    QLabel* zone_;
};

}  // namespace Tarvik::Seaplan
