// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ChartWidget.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "host/plugins/seamap/widget/ChartTools.h"
#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr const char* kPictures = "pictures";
constexpr int kNightfallMs = 60000;  ///< in which the shadow of the night moves by a quarter of a degree

}  // namespace

ChartWidget::ChartWidget(ChartObjects& objects, QWidget* parent)
    : QWidget(parent),
      objects_(objects),
      scene_(objects),
      camera_([this] { OnMoved(); }),
      card_(new PortCard(this)),
      tools_(new ChartTools(*this)) {
    setObjectName("chart");
    setAccessibleName(tr("Chart"));
    setAccessibleDescription(
        tr("Drag or use the arrow keys to move, the wheel or + and - to zoom, Home to show all."));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::OpenHandCursor);
    objects_.SetObserver([this] { update(); });
    objects_.Plans().SetObserver([this] {
        tools_->TakePlans();
        update();
    });
    camera_.SetRoom([this] { return FreeOfPanels(); });
}

ChartWidget::~ChartWidget() {
    objects_.SetObserver({});
    objects_.Plans().SetObserver({});
}

void ChartWidget::Change(const std::function<void(ChartScene&)>& change) {
    change(scene_);
    update();
}

void ChartWidget::SetNames(const std::vector<ChartName>& names) {
    Change([&names](ChartScene& scene) { scene.SetNames(names); });
    tools_->SetNames(names);
}

void ChartWidget::ShowParts(const ChartParts& parts) {
    Change([&parts](ChartScene& scene) { scene.ShowParts(parts); });
    tools_->TakeParts();
    nightfall_.stop();
    if (parts.daylight) {
        nightfall_.start(kNightfallMs, this);
    }
}

void ChartWidget::CentreOn(GeoPoint place, std::int64_t leastWorld) {
    camera_.CentreOn(place, leastWorld);
}

void ChartWidget::timerEvent(QTimerEvent*) {
    update();
}

void ChartWidget::OnMoved() {
    card_->hide();
    update();
}

void ChartWidget::ShowCard(const ChartName& port) {
    card_->ShowPort(port, View().ToScreen(port.position));
}

void ChartWidget::SetTheme(ChartPalette::Theme theme) {
    scene_.SetTheme(theme);
    card_->ApplyTheme(scene_.Palette());
    tools_->ApplyTheme();
    update();
}

bool ChartWidget::ShowExtent(const Extent& extent) {
    if (press_.drags || camera_.IsZooming()) {
        return false;
    }
    camera_.Show(extent, IsAnimated());
    return true;
}

LabelBox ChartWidget::FreeOfPanels() const {
    std::vector<LabelBox> covers;
    for (const QWidget* panel : window()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool floats = panel->windowType() == Qt::Tool || panel->windowType() == Qt::Dialog;
        if (floats && panel->isVisible()) {
            const QRect at = panel->frameGeometry().translated(-mapToGlobal(QPoint()));
            covers.push_back({double(at.x()), double(at.y()), double(at.width()), double(at.height())});
        }
    }
    return FreeRoom({0, 0, double(width()), double(height())}, covers);
}

void ChartWidget::FitAll() {
    ShowExtent(scene_.ExtentOfAll());
}

void ChartWidget::ZoomSteps(int steps) {
    camera_.ZoomAround({width() / 2.0, height() / 2.0}, steps, IsAnimated());
}

bool ChartWidget::IsAnimated() const {
    return isVisible() && !property(kPictures).toBool() && !qApp->property(kPictures).toBool();
}

bool ChartWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto met =
        scene_.At({double(help->pos().x()), double(help->pos().y())}, View(), devicePixelRatioF());
    const PixelPoint pixel{double(help->pos().x()), double(help->pos().y())};
    if (const ChartName* port = scene_.PortAt(pixel, View(), devicePixelRatioF())) {
        QToolTip::showText(help->globalPos(), PortCard::TextOf(*port), this);
    } else if (met) {
        QToolTip::showText(help->globalPos(), met->tip, this);
    } else {
        QToolTip::hideText();
    }
    return true;
}

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    scene_.Paint(painter, View(), devicePixelRatioF(), highlighted_ ? &*highlighted_ : nullptr);
    tools_->Draw(painter);
    drag_.Paint(painter, QColor(scene_.Palette().accent));
    if (!byKeyboard_) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(scene_.Palette().accent), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ChartWidget::resizeEvent(QResizeEvent*) {
    camera_.Resize(width(), height());
    tools_->Place();
}

void ChartWidget::focusInEvent(QFocusEvent* event) {
    byKeyboard_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void ChartWidget::focusOutEvent(QFocusEvent*) {
    byKeyboard_ = false;
    update();
}

}  // namespace Tarvik::Seamap
