// SPDX-License-Identifier: MIT
#include "host/plugins/ais/window/VesselCardWindow.h"

#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/geo/GeoPoint.h"
#include "host/plugins/ais/window/Words.h"

namespace Tarvik::Ais {

namespace {

constexpr int kWidth = 300;        ///< pixels
constexpr int kBesideCursor = 16;  ///< pixels

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// A time in the zone that the person chose, and its name.
QString TimeText(std::int64_t utc) {
    const std::string* chosen = Interface::Call(Interface::Bus::CurrentTimeZone);
    const std::string zone = chosen == nullptr ? "UTC" : *chosen;
    const auto local = Util::DateTimeUtl::ConvertFromUTC(Util::_datetime_t::from_gmt_timer(utc), zone);
    return Text(std::string(local.fmt(Util::kTimeFormat)) + " " + zone);
}

}  // namespace

VesselCardWindow::VesselCardWindow(QWidget* mainWindow) : ToolWindow(mainWindow, "aisVesselCard") {
    QToolButton* close = AddCaptionButton("aisCardClose", "close");
    Skin::Describe(close, Word("CLOSE"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    setFixedWidth(kWidth);
}

void VesselCardWindow::Show(const CardFacts& facts) {
    SetCaption(facts.name.empty() ? QString::number(facts.mmsi) : Text(facts.name));
    delete rows_;
    rows_ = new QWidget(this);
    form_ = new QFormLayout(rows_);
    form_->setContentsMargins(2 * Skin::kGrid, Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid);
    Fill(facts);
    Body()->addWidget(rows_);
    rows_->show();
    adjustSize();
    PlaceAt({facts.cursorX, facts.cursorY});
    show();
    raise();
}

void VesselCardWindow::Fill(const CardFacts& facts) {
    Row("NAME", Text(facts.name));
    Row("MMSI", facts.mmsi == 0 ? QString() : QString("%1").arg(facts.mmsi, 9, 10, QChar('0')));
    Row("CALLSIGN", Text(facts.callSign));
    if (facts.hasFix) {
        const Fix& fix = facts.fix;
        Row("POSITION", Text(Server::FormatPosition({fix.longitude, fix.latitude})));
        Row("COURSE", fix.course < 0 ? QString() : QString("%1°").arg(fix.course, 5, 'f', 1, QChar('0')));
        Row("SPEED", fix.speed < 0 ? QString() : QString("%1 kn").arg(fix.speed, 0, 'f', 1));
        Row("TIME", TimeText(fix.time));
        Row("SOURCE", facts.planned ? Word("SOURCE_PLAN") : Word("SOURCE_AIS"));
    } else {
        Row("POSITION", Word("NOT_KNOWN"));
    }
    Row("DESTINATION", Text(facts.destination));
    Row("FIRST_PORT", Text(facts.firstPort));
    Row("LAST_PORT", Text(facts.lastPort));
}

void VesselCardWindow::Row(const char* key, const QString& text) {
    if (text.isEmpty()) {
        return;
    }
    auto* value = new QLabel(text, rows_);
    value->setObjectName(QString("ais") + key);
    value->setAccessibleName(Word(key));
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form_->addRow(Word(key), value);
}

void VesselCardWindow::PlaceAt(const QPoint& cursor) {
    const QScreen* screen = QGuiApplication::screenAt(cursor);
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    const QRect room = screen->availableGeometry();
    const int x =
        std::clamp(cursor.x() + kBesideCursor, room.left(), std::max(room.left(), room.right() - width()));
    const int y =
        std::clamp(cursor.y() + kBesideCursor, room.top(), std::max(room.top(), room.bottom() - height()));
    move(x, y);
}

}  // namespace Tarvik::Ais
