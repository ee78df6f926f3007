// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartScene.h"

#include <QPainter>
#include <QPolygonF>

#include "host/plugins/seamap/core/Daylight.h"
#include "host/plugins/seamap/core/HitTest.h"
#include "host/plugins/seamap/core/Measure.h"
#include "host/plugins/seamap/widget/Beside.h"
#include "host/plugins/seamap/widget/ChartCamera.h"
#include "host/plugins/seamap/widget/Furniture.h"
#include "host/plugins/seamap/widget/PlanPainter.h"

namespace Tarvik::Seamap {

namespace {

// How far the night darkens the chart, of 255; a dark chart needs more to show it.
constexpr int kShade = 56;
constexpr int kDarkShade = 110;

}  // namespace

void ChartScene::ShowParts(const ChartParts& parts) {
    if (parts.graticule != parts_.graticule) {
        base_.ShowGraticule(parts.graticule);
    }
    lines_.ShowTints(parts.tints);
    parts_ = parts;
}

void ChartScene::SetTheme(ChartPalette::Theme theme) {
    palette_ = &ChartPalette::Of(theme);
    images_.SetPalette(*palette_);
}

void ChartScene::Paint(QPainter& painter, const MercatorView& view, qreal pixelRatio,
                       const ObjectKey* highlighted) {
    PaintBase(painter, view, pixelRatio);
    PaintNight(painter, view);
    const Furniture furniture(view, *palette_, texts_, parts_.graticule);
    LabelRoom room;
    shipPainter_.Adopt(*palette_, pixelRatio);
    shipPainter_.Draw(
        painter, objects_.Ships(), view,
        highlighted ? std::pair(highlighted->type, highlighted->id) : std::pair<std::string, std::string>());
    lines_.Draw(painter, view, *palette_, objects_, highlighted);
    const ChartLook look{*palette_, images_, texts_, pixelRatio};
    ObjectPainter(painter, view, look, room).Draw(objects_, highlighted, planTime_.has_value());
    PaintPlans(painter, view, look, room);
    furniture.Reserve(room);
    if (parts_.names) {
        names_.Draw(painter, view, *palette_, texts_, room);
    } else {
        names_.Hide();
    }
    furniture.Draw(painter);
}

/// Land and sea; the lines, which take as long, are drawn into their own picture meanwhile.
void ChartScene::PaintBase(QPainter& painter, const MercatorView& view, qreal pixelRatio) {
    std::optional<Beside> lines;
    if (!lines_.IsGood(view, *palette_, objects_, pixelRatio)) {
        lines.emplace([&] { lines_.Prepare(view, *palette_, objects_, pixelRatio); });
    }
    painter.drawPixmap(0, 0, base_.Picture(view, *palette_, pixelRatio));
}

/// The ports of the voyage that stands out, or of the only one, and the ships while a time is chosen.
void ChartScene::PaintPlans(QPainter& painter, const MercatorView& view, const ChartLook& look,
                            LabelRoom& room) {
    const VoyagePlans& plans = objects_.Plans();
    PlanPainter plan(painter, view, look, room);
    if (planTime_) {
        plan.DrawShips(plans, *planTime_, parts_.tints);
    }
    if (const VoyagePlan* chosen = plans.Chosen()) {
        plan.DrawPorts(*chosen);
    }
}

void ChartScene::PaintNight(QPainter& painter, const MercatorView& view) const {
    if (!parts_.daylight) {
        return;
    }
    QPolygonF edge;
    const std::int64_t now = CsecsOf(planTime_.value_or(PlanTimeNow()));
    for (const PixelPoint& point : NightIn(view, SunAt(now))) {
        edge.append(QPointF(point.x, point.y));
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, palette_->theme == ChartPalette::Theme::Light ? kShade : kDarkShade));
    painter.drawPolygon(edge);
}

std::optional<ChartScene::Met> ChartScene::At(PixelPoint pixel, const MercatorView& view, qreal pixelRatio) {
    if (planTime_) {
        if (const auto ship = PlanPainter::ShipAt(objects_.Plans(), *planTime_, pixel, view)) {
            const auto& told = ship->plan->told;
            return Met{{told.layer, told.shipType, told.id}, PlanPainter::TipOf(*ship)};
        }
    }
    const auto halfSize = [this, pixelRatio](const std::string& name) {
        return images_.HalfSize(name, objects_.ImagePath(name), pixelRatio);
    };
    const ChartObject* object = HitTest(objects_, view, halfSize).At(pixel);
    if (!object || std::holds_alternative<ChartLine>(object->shape)) {
        if (const ChartShip* ship = objects_.Ships().At(pixel, view)) {
            return Met{{"", ship->type, ship->id},
                       QString::fromStdString(ship->tip + "\n" + FormatPosition(ship->position))};
        }
    }
    if (object == nullptr) {
        return std::nullopt;
    }
    return Met{object->key, TipOf(*object, pixel, view), std::holds_alternative<ChartLine>(object->shape)};
}

const ChartName* ChartScene::PortAt(PixelPoint pixel, const MercatorView& view, qreal pixelRatio) {
    const auto met = At(pixel, view, pixelRatio);
    return met && !met->isLine ? nullptr : names_.PortAt(pixel);
}

QString ChartScene::TipOf(const ChartObject& object, PixelPoint pixel, const MercatorView& view) const {
    if (const auto* label = std::get_if<ChartLabel>(&object.shape)) {
        const QString place = QString::fromStdString(FormatPosition(label->position));
        return label->text.empty() ? place : QString::fromStdString(label->text) + "\n" + place;
    }
    if (const auto* image = std::get_if<ChartImage>(&object.shape)) {
        return QString::fromStdString(FormatPosition(image->position));
    }
    if (const auto* line = std::get_if<ChartLine>(&object.shape)) {
        return TipOf(object, *line, LegNear(*line, pixel, view));
    }
    return {};
}

QString ChartScene::TipOf(const ChartObject& object, const ChartLine& line, std::size_t leg) const {
    const WorldPoint from = line.points[leg - 1], to = line.points[leg];
    if (const VoyagePlan* plan = objects_.Plans().Find(object.key.layer, object.key.id)) {
        if (const auto planned = VoyagePlans::LegOf(*plan, from, to)) {
            return PlanPainter::TipOf(*planned);
        }
    }
    // As it is drawn: straight on this chart.
    const MeasuredLeg measured = MeasureLeg(Unproject(from), Unproject(to), Track::RhumbLine);
    return QString::fromStdString(FormatPosition(measured.from) + "\n" + FormatPosition(measured.to) + "\n" +
                                  LegText(measured));
}

Extent ChartScene::ExtentOfAll() const {
    return Extent::Around(objects_.Points()).value_or(kInhabitedWorld);
}

}  // namespace Tarvik::Seamap
