// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/PlanPainter.h"

#include <QPainter>
#include <QPolygonF>
#include <QStringList>
#include <cmath>

#include <tarvik/skin/Words.h>

#include "host/plugins/seamap/core/Measure.h"
#include "host/plugins/seamap/widget/HaloTexts.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kDisc = 8;       ///< radius of a port's number
constexpr double kShipReach = 9;  ///< from a ship's middle to its bow, and where it is still met
constexpr int kMostBeside = 4;    ///< discs beside one another at one place
constexpr double kSecondsPerHour = 3600;

using Place = Interface::TrvMapPlanPlace;

PixelPoint OnScreen(WorldPoint place, const MercatorView& view) {
    return view.ToScreen(place, static_cast<int>(std::lround(view.Centre().x - place.x)));
}

bool IsInside(PixelPoint at, const MercatorView& view) {
    return LabelBox{0, 0, double(view.Width()), double(view.Height())}.Holds({at.x, at.y, 0, 0});
}

QString NameOf(const Place& place) {
    return QString::fromStdString(place.name.empty() ? FormatPosition({place.x, place.y}) : place.name);
}

QString TimeWord(const char* key, PlanTime time) {
    return Skin::Word("Chart", key).replace("%1", QString::fromStdString(PlanTimeText(time)));
}

}  // namespace

void PlanPainter::DrawPorts(const VoyagePlan& plan) {
    int number = 0;
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing, true);
    QFont font = painter_.font();
    font.setPixelSize(kLineTextPixels);
    painter_.setFont(font);
    const auto& places = plan.told.places;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (!places[i].port) {
            continue;
        }
        ++number;
        const PixelPoint port = OnScreen(plan.way[i], view_);
        if (!IsInside(port, view_)) {
            continue;
        }
        const PixelPoint at = DiscPlace(port);
        room_.Take({at.x - kDisc, at.y - kDisc, 2 * kDisc, 2 * kDisc});
        painter_.setPen(QPen(QColor(look_.palette.halo), 1.5));
        painter_.setBrush(QColor(look_.palette.accent));
        painter_.drawEllipse(QPointF(at.x, at.y), kDisc, kDisc);
        painter_.setPen(QColor(look_.palette.halo));
        painter_.drawText(QRectF(at.x - kDisc, at.y - kDisc, 2 * kDisc, 2 * kDisc), Qt::AlignCenter,
                          QString::number(number));
        const QString time =
            number == 1 ? TimeWord("ETD_AT", places[i].departure) : TimeWord("ETA_AT", places[i].arrival);
        DrawText(at, kDisc, NameOf(places[i]) + "  " + time);
    }
    painter_.restore();
}

PixelPoint PlanPainter::DiscPlace(PixelPoint at) const {
    PixelPoint place = at;
    for (int i = 0; i < kMostBeside; ++i, place.x += 2 * kDisc + 1) {
        if (room_.IsFree({place.x - kDisc, place.y - kDisc, 2 * kDisc, 2 * kDisc})) {
            return place;
        }
    }
    return at;
}

void PlanPainter::DrawText(PixelPoint at, double radius, const QString& text) {
    ObjectPainter(painter_, view_, look_, room_).DrawBeside(at, radius, text, false);
}

void PlanPainter::DrawShips(const VoyagePlans& plans, PlanTime time, bool tints) {
    static const QPolygonF kHull({{0, -kShipReach}, {5, -2}, {5, 7}, {-5, 7}, {-5, -2}});
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing, true);
    QFont font = painter_.font();
    font.setPixelSize(kLineTextPixels);
    painter_.setFont(font);
    for (const PlannedShip& ship : plans.At(time)) {
        const PixelPoint at = OnScreen(ship.place, view_);
        if (!IsInside(at, view_)) {
            continue;
        }
        room_.Take({at.x - kShipReach, at.y - kShipReach, 2 * kShipReach, 2 * kShipReach});
        painter_.setPen(QPen(QColor(look_.palette.halo), 1.5));
        painter_.setBrush(
            QColor(tints ? Skin::TintOf(ship.plan->tint, look_.palette.theme) : look_.palette.text));
        painter_.save();
        painter_.translate(at.x, at.y);
        painter_.rotate(ship.course);
        if (ship.course < 0) {
            painter_.drawEllipse(QPointF(0, 0), kShipReach / 2, kShipReach / 2);
        } else {
            painter_.drawPolygon(kHull);
        }
        painter_.restore();
        const auto& told = ship.plan->told;
        DrawText(at, kShipReach, QString::fromStdString(told.vessel.empty() ? told.name : told.vessel));
    }
    painter_.restore();
}

std::optional<PlannedShip> PlanPainter::ShipAt(const VoyagePlans& plans, PlanTime time, PixelPoint pixel,
                                               const MercatorView& view) {
    std::optional<PlannedShip> best;
    double nearest = kShipReach;
    for (const PlannedShip& ship : plans.At(time)) {
        const PixelPoint at = OnScreen(ship.place, view);
        const double away = std::hypot(at.x - pixel.x, at.y - pixel.y);
        if (away <= nearest) {
            nearest = away;
            best = ship;
        }
    }
    return best;
}

QString PlanPainter::TipOf(const PlannedShip& ship) {
    const auto& told = ship.plan->told;
    const Place& next = told.places[ship.nextPort];
    QStringList lines{QString::fromStdString(told.vessel.empty() ? told.name : told.vessel)};
    if (!told.vessel.empty()) {
        lines.append(QString::fromStdString(told.name));
    }
    lines.append(QString::fromStdString(FormatPosition(Unproject(ship.place))));
    lines.append(NameOf(next) + "  " + TimeWord("ETA_AT", next.arrival));
    return lines.join('\n');
}

QString PlanPainter::TipOf(const PlanLeg& leg) {
    const Place& from = leg.plan->told.places[leg.from];
    const Place& to = leg.plan->told.places[leg.to];
    // As it is drawn: straight on this chart.
    const MeasuredLeg measured = MeasureLeg({from.x, from.y}, {to.x, to.y}, Track::RhumbLine);
    const double hours = static_cast<double>(to.arrival - from.departure) / kSecondsPerHour;
    return QStringList{NameOf(from), NameOf(to), QString::fromStdString(LegText(measured)),
                       QString::fromStdString(HoursText(hours, 1)) + "  " + TimeWord("ETA_AT", to.arrival)}
        .join('\n');
}

}  // namespace Tarvik::Seamap
