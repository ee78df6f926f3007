// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallSummary.h"

#include <QHBoxLayout>
#include <QMenu>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

PortCallSummary::PortCallSummary(QWidget* parent)
    : QWidget(parent),
      figures_{MakeFigure("averageSpeed", UnitKind::Speed), MakeFigure("totalDistance", UnitKind::Distance),
               MakeFigure("totalTime", UnitKind::Time)} {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Skin::kGrid);
    for (const Figure& figure : figures_) {
        if (&figure != figures_.data()) {
            row->addSpacing(4 * Skin::kGrid);
        }
        row->addWidget(figure.caption);
        row->addWidget(figure.value);
        row->addWidget(figure.unit);
        QObject::connect(figure.unit, &QToolButton::clicked, this, [this, figure] { OpenMenu(figure); });
    }
    row->addStretch(1);
    zone_ = new QLabel(this);
    zone_->setObjectName(QStringLiteral("zoneLabel"));
    zone_->setProperty("secondary", true);
    // The table gives the window its width; a zone with a long name tells it whole in its hint.
    zone_->setMinimumWidth(1);
    row->addWidget(zone_);
    ApplySkin();
}

PortCallSummary::Figure PortCallSummary::MakeFigure(const char* name, UnitKind kind) {
    Figure figure;
    figure.kind = kind;
    figure.caption = new QLabel(this);
    figure.caption->setProperty("secondary", true);
    figure.value = new QLabel(this);
    figure.value->setObjectName(QString::fromLatin1(name));
    figure.value->setMinimumWidth(56);
    figure.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure.unit = new QToolButton(this);
    figure.unit->setObjectName(QString::fromLatin1(name) + QStringLiteral("Unit"));
    figure.unit->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // The arrow stands behind the unit.
    figure.unit->setLayoutDirection(Qt::RightToLeft);
    figure.unit->setFocusPolicy(Qt::TabFocus);
    return figure;
}

void PortCallSummary::OpenMenu(const Figure& figure) {
    if (!reports_.menuOpens) {
        return;
    }
    const std::vector<std::string> units = reports_.menuOpens(figure.kind);
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("unitMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const std::string& unit : units) {
        menu->addAction(QString::fromStdString(unit), this, [this, kind = figure.kind, unit] {
            if (reports_.unitChosen) {
                reports_.unitChosen(kind, unit);
            }
        });
    }
    menu->popup(figure.unit->mapToGlobal(QPoint(0, figure.unit->height())));
}

void PortCallSummary::ShowState(const PortCallState& state) {
    const std::pair<const std::string*, const std::string*> shown[] = {
        {&state.summary.averageSpeed, &state.speedUnit},
        {&state.summary.totalDistance, &state.distanceUnit},
        {&state.summary.totalTime, &state.timeUnit}};
    for (std::size_t i = 0; i < figures_.size(); ++i) {
        figures_[i].value->setText(QString::fromStdString(*shown[i].first));
        figures_[i].unit->setText(QString::fromStdString(*shown[i].second));
    }
    zone_->setText(state.zone.empty()
                       ? QString()
                       : ViewText(TextId::IDS_VIEW_ZONE) + u' ' + QString::fromStdString(state.zone));
    zone_->setToolTip(zone_->text());
}

void PortCallSummary::ApplyTexts() {
    constexpr std::pair<TextId, TextId> kTexts[] = {
        {TextId::IDS_PORTCALL_AVARGERSPD, TextId::IDS_VIEW_AVERAGEHINT},
        {TextId::IDS_PORTCALL_TOTLEDISTANCE, TextId::IDS_VIEW_DISTANCEHINT},
        {TextId::IDS_PORTCALL_TOTALTIME, TextId::IDS_VIEW_TIMEHINT}};
    for (std::size_t i = 0; i < figures_.size(); ++i) {
        const QString caption = ViewText(kTexts[i].first);
        figures_[i].caption->setText(caption);
        Skin::Describe(figures_[i].value, caption);
        Skin::Describe(figures_[i].unit, ViewText(kTexts[i].second));
    }
}

void PortCallSummary::ApplySkin() {
    for (const Figure& figure : figures_) {
        figure.unit->setIcon(Skin::MakeIcon("chevron-down"));
    }
}

}  // namespace Tarvik::Seaplan
