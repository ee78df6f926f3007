// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/PortCard.h"

#include <QLocale>
#include <QMouseEvent>
#include <QStringList>
#include <algorithm>

namespace Tarvik::Seamap {

namespace {

constexpr int kAway = 10;  ///< pixels between a port's place and its card

/// The country that a UN/LOCODE begins with, in English; empty for none.
QString CountryOf(const QString& code) {
    const QLocale::Territory country = QLocale::codeToTerritory(code.left(2));
    return country == QLocale::AnyTerritory ? QString() : QLocale::territoryToString(country);
}

}  // namespace

PortCard::PortCard(QWidget* chart) : QLabel(chart) {
    setObjectName("portCard");
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

QString PortCard::TextOf(const ChartName& port) {
    QStringList lines{QString::fromStdString(port.text)};
    if (port.port != port.text && !port.port.empty()) {
        lines.append(QString::fromStdString(port.port));
    }
    const QString code = QString::fromStdString(port.code);
    const QString country = CountryOf(code);
    if (!code.isEmpty()) {
        lines.append(country.isEmpty() ? code : code + QStringLiteral("  ") + country);
    }
    lines.append(QString::fromStdString(FormatPosition(port.position)));
    return lines.join('\n');
}

void PortCard::ShowPort(const ChartName& port, PixelPoint place) {
    setText(TextOf(port));
    setAccessibleName(text());
    adjustSize();
    const int x = static_cast<int>(place.x);
    const int y = static_cast<int>(place.y);
    const int right = parentWidget()->width() - width();
    const int bottom = parentWidget()->height() - height();
    // On the other side where this one has no room.
    const int left = x + kAway > right ? x - kAway - width() : x + kAway;
    move(std::clamp(left, 0, std::max(0, right)), std::clamp(y + kAway, 0, std::max(0, bottom)));
    show();
    raise();
}

void PortCard::ApplyTheme(const ChartPalette& palette) {
    setStyleSheet(CardSheet(objectName(), palette));
}

void PortCard::mousePressEvent(QMouseEvent* event) {
    event->accept();
    hide();
}

}  // namespace Tarvik::Seamap
