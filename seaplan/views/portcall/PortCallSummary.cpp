// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallSummary.h"

#include <QHBoxLayout>
#include <QLabel>

#include <tarvik/skin/Palette.h>

#include "seaplan/calculation/Units.h"
#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

PortCallSummary::PortCallSummary(QWidget* parent)
    : UnitFigures(
          parent,
          {{{"averageSpeed", UnitKind::Speed, TextIds::IDS_PORTCALL_AVARGERSPD,
             TextIds::IDS_VIEW_AVERAGEHINT},
            {"totalDistance", UnitKind::Distance, TextIds::IDS_PORTCALL_TOTLEDISTANCE,
             TextIds::IDS_VIEW_DISTANCEHINT},
            {"totalTime", UnitKind::Time, TextIds::IDS_PORTCALL_TOTALTIME, TextIds::IDS_VIEW_TIMEHINT}}},
          {.valueWidth = 56, .gap = 4 * Skin::kGrid}),
      zone_(new QLabel(this)) {
    zone_->setObjectName(QStringLiteral("zoneLabel"));
    zone_->setProperty("secondary", true);
    // The table gives the window its width; a zone with a long name tells it whole in its hint.
    zone_->setMinimumWidth(1);
    Line().addWidget(zone_);
}

void PortCallSummary::ShowState(const PortCallState& state) {
    ShowFigure(UnitKind::Speed, state.summary.averageSpeed, state.speedUnit);
    ShowFigure(UnitKind::Distance, state.summary.totalDistance, state.distanceUnit);
    ShowFigure(UnitKind::Time, state.summary.totalTime, state.timeUnit);
    ShowStale(state.staleSummary ? ViewText(TextIds::IDS_VIEW_STALE) : QString());
    zone_->setText(state.zone.empty()
                       ? QString()
                       : ViewText(TextIds::IDS_VIEW_ZONE) + u' ' + QString::fromStdString(state.zone));
    zone_->setToolTip(zone_->text());
}

}  // namespace Tarvik::Seaplan
