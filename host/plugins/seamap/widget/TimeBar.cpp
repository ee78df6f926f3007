// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/TimeBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include <tarvik/skin/Words.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kBesideScaleBar = 196;  ///< where the bar begins when the chart is wide enough
constexpr int kLeastWidth = 420;
constexpr int kAboveScaleBar = 56;
constexpr int kStepMinutes = 60, kPageMinutes = 24 * 60;
constexpr int kPlayMs = 50;  ///< in which the time goes on by a step
constexpr PlanTime kMinute = 60;

QToolButton* Button(QWidget* parent, const char* name, const char* sign) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(QString::fromUtf8(sign));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

void PressedSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setValue(
            QStyle::sliderValueFromPosition(minimum(), maximum(), qRound(event->position().x()), width()));
    }
    QSlider::mousePressEvent(event);
}

TimeBar::TimeBar(QWidget* chart)
    : QFrame(chart),
      slider_(new PressedSlider(Qt::Horizontal, this)),
      back_(Button(this, "timeBack", "‹")),
      play_(Button(this, "timePlay", "▶")),
      on_(Button(this, "timeOn", "›")),
      close_(Button(this, "timeClose", "×")),
      text_(new QLabel(this)) {
    setObjectName("timeBar");
    slider_->setObjectName("timeSlider");
    slider_->setSingleStep(kStepMinutes);
    slider_->setPageStep(kPageMinutes);
    text_->setObjectName("timeText");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 2, 4, 2);
    for (QWidget* part :
         {static_cast<QWidget*>(back_), static_cast<QWidget*>(play_), static_cast<QWidget*>(on_)}) {
        row->addWidget(part);
    }
    row->addWidget(slider_, 1);
    row->addWidget(text_);
    row->addWidget(close_);
    connect(back_, &QToolButton::clicked, this, [this] { Step(-1); });
    connect(on_, &QToolButton::clicked, this, [this] { Step(1); });
    connect(play_, &QToolButton::clicked, this, &TimeBar::TogglePlay);
    connect(close_, &QToolButton::clicked, this, [this] { Turn(false); });
    connect(slider_, &QSlider::valueChanged, this, [this] {
        ShowTime();
        emit Changed();
    });
    ApplyTexts();
    hide();
}

void TimeBar::ApplyTexts() {
    const auto name = [](QToolButton* button, const char* key) {
        button->setToolTip(Skin::Word("Chart", key));
        button->setAccessibleName(Skin::Word("Chart", key));
    };
    name(back_, "TIME_BACK");
    name(play_, running_.isActive() ? "TIME_STOP" : "TIME_PLAY");
    name(on_, "TIME_ON");
    name(close_, "TIME_CLOSE");
    slider_->setAccessibleName(Skin::Word("Chart", "TIME_SLIDER"));
    ShowTime();
}

void TimeBar::Turn(bool open) {
    running_.stop();
    setVisible(open);
    if (open && times_) {
        const PlanTime now = PlanTimeNow();
        slider_->setValue(
            static_cast<int>((std::clamp(now, times_->first, times_->last) - times_->first) / kMinute));
    }
    ApplyTexts();
    Place();
    emit Changed();
}

void TimeBar::TakePlans(const VoyagePlans& plans) {
    const auto before = Time();
    times_ = plans.Times();
    const bool any = times_.has_value();
    for (QWidget* part : {static_cast<QWidget*>(slider_), static_cast<QWidget*>(back_),
                          static_cast<QWidget*>(play_), static_cast<QWidget*>(on_)}) {
        part->setEnabled(any);
    }
    if (any) {
        const PlanTime time = std::clamp(before.value_or(times_->first), times_->first, times_->last);
        const QSignalBlocker still(slider_);
        slider_->setRange(0, static_cast<int>((times_->last - times_->first) / kMinute));
        slider_->setValue(static_cast<int>((time - times_->first) / kMinute));
    } else {
        running_.stop();
    }
    ApplyTexts();
    if (Time() != before) {
        emit Changed();
    }
}

std::optional<PlanTime> TimeBar::Time() const {
    // Asked of the bar itself: it is open too while the chart around it is not on the screen.
    return isHidden() || !times_ ? std::nullopt : std::optional(times_->first + slider_->value() * kMinute);
}

void TimeBar::Step(int hours) {
    slider_->setValue(slider_->value() + hours * kStepMinutes);
}

void TimeBar::TogglePlay() {
    if (running_.isActive() || !Time()) {
        running_.stop();
    } else {
        if (slider_->value() == slider_->maximum()) {
            slider_->setValue(0);
        }
        running_.start(kPlayMs, this);
    }
    play_->setText(QString::fromUtf8(running_.isActive() ? "❚❚" : "▶"));
    ApplyTexts();
}

void TimeBar::timerEvent(QTimerEvent*) {
    Step(1);
    if (slider_->value() == slider_->maximum()) {
        TogglePlay();
    }
}

void TimeBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        parentWidget()->setFocus();
        return Turn(false);
    }
    QFrame::keyPressEvent(event);
}

void TimeBar::ShowTime() {
    if (!times_) {
        return text_->setText(Skin::Word("Chart", "TIME_NOTHING"));
    }
    const PlanTime time = times_->first + slider_->value() * kMinute;
    text_->setText(QString::fromStdString(PlanTimeText(time)));
    text_->setToolTip(
        QString::fromStdString(Util::_datetime_t::from_gmt_timer(time).fmt(Util::kMinuteFormat)) + " UTC");
}

void TimeBar::Place() {
    const int width = parentWidget()->width();
    const bool wide = width - kBesideScaleBar - kCardToEdge >= kLeastWidth;
    const int left = wide ? kBesideScaleBar : kCardToEdge;
    setFixedWidth(std::max(width - left - kCardToEdge, 0));
    layout()->activate();
    adjustSize();
    move(left, parentWidget()->height() - height() - (wide ? kCardToEdge : kAboveScaleBar));
}

void TimeBar::ApplyTheme(const ChartPalette& palette) {
    setStyleSheet(CardSheet(objectName(), palette));
}

}  // namespace Tarvik::Seamap
