// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/PortCard.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPushButton>
#include <QStringList>
#include <algorithm>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/skin/Words.h>

namespace Tarvik::Seamap {

namespace {

constexpr int kAway = 10;        ///< pixels between a port's place and its card
constexpr int kButtonSide = 13;  ///< pixels between the card's edge and its buttons, as for its text
constexpr int kButtonGap = 8;    ///< pixels between and below the buttons

/// The country that a UN/LOCODE begins with, in English; empty for none.
QString CountryOf(const QString& code) {
    const QLocale::Territory country = QLocale::codeToTerritory(code.left(2));
    return country == QLocale::AnyTerritory ? QString() : QLocale::territoryToString(country);
}

}  // namespace

PortCard::PortCard(QWidget* chart)
    : QLabel(chart),
      change_(AddButton("portCardChange", Interface::Bus::ChangeOwnPort)),
      remove_(AddButton("portCardRemove", Interface::Bus::RemoveOwnPort)) {
    setObjectName("portCard");
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

QPushButton* PortCard::AddButton(const char* name, const OwnPortService& service) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, service] {
        const std::string id = own_;
        parentWidget()->setFocus();
        hide();
        Interface::Call(service, &id);
    });
    return button;
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
    own_ = Interface::IsOffered(Interface::Bus::ChangeOwnPort) ? port.own : std::string();
    adjustSize();
    PlaceButtons();
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

void PortCard::PlaceButtons() {
    change_->setVisible(!own_.empty());
    remove_->setVisible(!own_.empty());
    if (own_.empty()) {
        return;
    }
    change_->setText(Skin::Word("Chart", "CHANGE_PORT"));
    remove_->setText(Skin::Word("Chart", "REMOVE_PORT"));
    int x = kButtonSide;
    for (QPushButton* button : {change_, remove_}) {
        button->adjustSize();
        button->move(x, height());
        x += button->width() + kButtonGap;
    }
    resize(std::max(width(), x - kButtonGap + kButtonSide), height() + change_->height() + kButtonGap);
}

void PortCard::ApplyTheme(const ChartPalette& palette) {
    setStyleSheet(CardSheet(objectName(), palette));
}

void PortCard::mousePressEvent(QMouseEvent* event) {
    event->accept();
    hide();
}

}  // namespace Tarvik::Seamap
