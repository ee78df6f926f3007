// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartTools.h"

#include <QPainter>
#include <cstdint>

#include "host/plugins/seamap/widget/ChartWidget.h"
#include "host/plugins/seamap/widget/GoToBar.h"
#include "host/plugins/seamap/widget/MeasureCard.h"
#include "host/plugins/seamap/widget/TimeBar.h"
#include "host/plugins/seamap/widget/VoyageLegend.h"

namespace Tarvik::Seamap {

namespace {

/// A place that was gone to is shown with the ports around it.
constexpr std::int64_t kNearWorld = 1 << 15;

}  // namespace

ChartTools::ChartTools(ChartWidget& chart)
    : QObject(&chart),
      chart_(chart),
      finder_(std::make_unique<PortFinder>(std::vector<ChartName>())),
      card_(new MeasureCard(&chart)),
      goTo_(new GoToBar(&chart, [this](const std::string& typed,
                                       std::size_t limit) { return finder_->Find(typed, limit); })),
      time_(new TimeBar(&chart)),
      legend_(new VoyageLegend(&chart)) {
    connect(card_, &MeasureCard::Chosen, this, [this](Track track, double knots) {
        measure_.track = track;
        measure_.knots = knots;
        Refresh();
    });
    connect(goTo_, &GoToBar::Chosen, this, &ChartTools::GoTo);
    connect(legend_, &VoyageLegend::Chosen, &chart, &ChartWidget::ObjectClicked);
    connect(time_, &TimeBar::Changed, this,
            [this] { chart_.Change([this](ChartScene& scene) { scene.SetPlanTime(time_->Time()); }); });
}

ChartTools::~ChartTools() = default;

void ChartTools::SetNames(const std::vector<ChartName>& names) {
    goTo_->hide();  // what it has on offer are the old finder's
    finder_ = std::make_unique<PortFinder>(names);
    card_->ApplyTexts();
    time_->ApplyTexts();
    TakeParts();
}

void ChartTools::ApplyTheme() {
    card_->ApplyTheme(chart_.Palette());
    goTo_->ApplyTheme(chart_.Palette());
    time_->ApplyTheme(chart_.Palette());
    legend_->ApplyTheme(chart_.Palette());
    TakeParts();
}

void ChartTools::OpenGoTo() {
    goTo_->Open();
}

void ChartTools::GoTo(const Destination& place) {
    chart_.CentreOn(place.position, kNearWorld);
    mark_ = place.port == nullptr ? std::optional(place.position) : std::nullopt;
    if (place.port != nullptr) {
        chart_.ShowCard(*place.port);
    }
}

void ChartTools::MeasureFrom(GeoPoint place) {
    measure_.Begin(place);
    pointer_.reset();
    chart_.setFocus();
    Refresh();
}

bool ChartTools::TakeClick(GeoPoint place) {
    if (!measure_.IsRunning()) {
        return false;
    }
    measure_.Add(place);
    Refresh();
    return true;
}

void ChartTools::TakePointer(std::optional<GeoPoint> place) {
    pointer_ = place;
    if (measure_.IsRunning()) {
        chart_.update();
    }
}

void ChartTools::ToggleTime() {
    time_->TakePlans(chart_.Plans());
    time_->Turn(time_->isHidden());
}

void ChartTools::TakePlans() {
    // Hundreds of plans come at once when pinned voyages are drawn: a bar that is not shown asks when it is.
    if (!time_->isHidden()) {
        time_->TakePlans(chart_.Plans());
    }
    TakeParts();
}

void ChartTools::TakeParts() {
    if (chart_.Parts().tints) {
        legend_->Show(chart_.Plans(), chart_.Palette());
    } else {
        legend_->hide();
    }
}

bool ChartTools::TakeTimeKey(int key) {
    if (key == Qt::Key_T) {
        ToggleTime();
        return true;
    }
    if (time_->isHidden()) {
        return false;
    }
    switch (key) {
        case Qt::Key_Comma:
            time_->Step(-1);
            return true;
        case Qt::Key_Period:
            time_->Step(1);
            return true;
        case Qt::Key_Space:
            time_->TogglePlay();
            return true;
        default:
            return false;
    }
}

bool ChartTools::TakeKey(int key) {
    if (TakeTimeKey(key)) {
        return true;
    }
    if (key == Qt::Key_Escape && (measure_.IsRunning() || mark_)) {
        measure_.End();
        mark_.reset();
    } else if (key != Qt::Key_Backspace || !measure_.IsRunning()) {
        return false;
    } else {
        measure_.TakeBack();
    }
    Refresh();
    return true;
}

void ChartTools::Draw(QPainter& painter) {
    layer_.Draw(painter, chart_.View(), chart_.Palette(), measure_, pointer_);
    if (mark_) {
        layer_.DrawMark(painter, chart_.View(), chart_.Palette(), *mark_);
    }
}

void ChartTools::Place() {
    card_->ShowMeasure(measure_);
    goTo_->Place();
    time_->Place();
    legend_->Place();
}

void ChartTools::Refresh() {
    card_->ShowMeasure(measure_);
    chart_.update();
}

}  // namespace Tarvik::Seamap
