// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/MeasureCard.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include <tarvik/skin/Words.h>

#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kInset = 12;                  ///< pixels to the chart's corner
constexpr std::size_t kMostLegs = 8;        ///< of which the card tells one by one: the last
constexpr double kLeast = 0.1, kMost = 99;  ///< knots

QString Word(const char* key) {
    return Skin::Word("Chart", key);
}

QString Row(const QString& name, double miles, const QString& course, double knots) {
    const auto cell = [](const QString& text, const char* side) {
        return QStringLiteral("<td align=\"%1\">%2&nbsp;&nbsp;</td>").arg(QLatin1String(side), text);
    };
    return "<tr>" + cell(name, "left") + cell(QString::number(miles, 'f', 1) + " NM", "right") +
           cell(course, "right") + cell(QString::fromStdString(HoursText(miles, knots)), "right") + "</tr>";
}

QString CourseText(const MeasuredLeg& leg) {
    const QString text = QString::fromStdString(LegText(leg));
    return text.mid(text.lastIndexOf(' ') + 1);
}

}  // namespace

MeasureCard::MeasureCard(QWidget* chart)
    : QFrame(chart),
      title_(new QLabel(this)),
      track_(new QComboBox(this)),
      knots_(new QDoubleSpinBox(this)),
      legs_(new QLabel(this)),
      hint_(new QLabel(this)) {
    setObjectName("measureCard");
    legs_->setObjectName("measuredLegs");
    legs_->setTextFormat(Qt::RichText);
    track_->setObjectName("measureTrack");
    track_->addItems({QString(), QString()});
    knots_->setObjectName("measureSpeed");
    knots_->setRange(kLeast, kMost);
    knots_->setDecimals(1);
    knots_->setSuffix(" kn");
    knots_->setButtonSymbols(QAbstractSpinBox::NoButtons);  // the arrow keys and the wheel turn it
    knots_->setValue(Measure::kUsualKnots);
    auto* column = new QVBoxLayout(this);
    column->addWidget(title_);
    auto* row = new QHBoxLayout;
    row->addWidget(track_, 1);
    row->addWidget(knots_);
    column->addLayout(row);
    column->addWidget(legs_);
    column->addWidget(hint_);
    const auto tell = [this] {
        emit Chosen(track_->currentIndex() == 0 ? Track::GreatCircle : Track::RhumbLine, knots_->value());
    };
    connect(track_, &QComboBox::activated, this, tell);
    connect(knots_, &QDoubleSpinBox::valueChanged, this, tell);
    ApplyTexts();
    hide();
}

void MeasureCard::ApplyTexts() {
    title_->setText("<b>" + Word("MEASURE").toHtmlEscaped() + "</b>");
    track_->setItemText(0, Word("GREAT_CIRCLE"));
    track_->setItemText(1, Word("RHUMB_LINE"));
    track_->setAccessibleName(Word("MEASURE_TRACK"));
    knots_->setAccessibleName(Word("MEASURE_SPEED"));
    hint_->setText(Word("MEASURE_HINT"));
    setAccessibleName(Word("MEASURE"));
}

void MeasureCard::ShowMeasure(const Measure& measure) {
    if (!measure.IsRunning()) {
        return hide();
    }
    const auto legs = measure.Legs();
    const std::size_t first = legs.size() > kMostLegs ? legs.size() - kMostLegs : 0;
    QString rows = first > 0 ? "<tr><td>…</td></tr>" : QString();
    double miles = 0;
    for (std::size_t i = 0; i < legs.size(); ++i) {
        miles += legs[i].miles;
        if (i >= first) {
            rows += Row(QString::number(i + 1), legs[i].miles, CourseText(legs[i]), measure.knots);
        }
    }
    const QString total = "<b>" + Word("TOTAL").toHtmlEscaped() + "</b>";
    legs_->setText("<table>" + rows + Row(total, miles, QString(), measure.knots) + "</table>");
    Place();
    show();
    raise();
}

void MeasureCard::Place() {
    adjustSize();
    move(std::max(0, parentWidget()->width() - width() - kInset), kInset * 2);
}

void MeasureCard::ApplyTheme(const ChartPalette& palette) {
    setStyleSheet(CardSheet(objectName(), palette));
}

}  // namespace Tarvik::Seamap
