// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/views/editors/UnitFigures.h"

namespace Tarvik::Seaplan {

struct PortCallState;

/// The line below the table: the voyage's totals, and the zone of the times.
class PortCallSummary final : public UnitFigures {
  public:
    explicit PortCallSummary(QWidget* parent);
    void ShowState(const PortCallState& state);

  private:
    QLabel* zone_;
};

}  // namespace Tarvik::Seaplan
