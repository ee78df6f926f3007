// SPDX-License-Identifier: MIT
#include "host/plugins/ais/window/VesselCardWindow.h"

#include <QLabel>
#include <algorithm>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/geo/GeoPoint.h"
#include "host/plugins/ais/window/Words.h"

namespace Tarvik::Ais {

namespace {

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

/// A fact of that key; its value's object name is "ais" and the key.
Skin::Fact FactOf(const char* key, const QString& value) {
    return {QString("ais") + key, Word(key), value};
}

std::vector<Skin::Fact> FixFacts(const CardFacts& facts) {
    if (!facts.hasFix) {
        return {FactOf("POSITION", Word("NOT_KNOWN"))};
    }
    const Fix& fix = facts.fix;
    return {
        FactOf("POSITION", Text(Server::FormatPosition({fix.longitude, fix.latitude}))),
        FactOf("COURSE", fix.course < 0 ? QString() : QString("%1°").arg(fix.course, 5, 'f', 1, QChar('0'))),
        FactOf("SPEED", fix.speed < 0 ? QString() : QString("%1 kn").arg(fix.speed, 0, 'f', 1)),
        FactOf("TIME", TimeText(fix.time)),
        FactOf("SOURCE", facts.planned ? Word("SOURCE_PLAN") : Word("SOURCE_AIS"))};
}

QString TitleOf(const CardFacts& facts) {
    return facts.name.empty() ? QString::number(facts.mmsi) : Text(facts.name);
}

std::vector<Skin::Fact> RowsOf(const CardFacts& facts) {
    std::vector<Skin::Fact> rows{
        FactOf("NAME", Text(facts.name)),
        FactOf("MMSI", facts.mmsi == 0 ? QString() : QString("%1").arg(facts.mmsi, 9, 10, QChar('0'))),
        FactOf("CALLSIGN", Text(facts.callSign))};
    const std::vector<Skin::Fact> fix = FixFacts(facts);
    rows.insert(rows.end(), fix.begin(), fix.end());
    rows.push_back(FactOf("DESTINATION", Text(facts.destination)));
    rows.push_back(FactOf("FIRST_PORT", Text(facts.firstPort)));
    rows.push_back(FactOf("LAST_PORT", Text(facts.lastPort)));
    return rows;
}

}  // namespace

VesselCardWindow::VesselCardWindow(QWidget* mainWindow)
    : FactsWindow(mainWindow, "aisVesselCard", "aisCardClose", Word("CLOSE")) {}

void VesselCardWindow::Show(const CardFacts& facts) {
    told_ = facts;
    ShowFacts(TitleOf(facts), RowsOf(facts), {facts.cursorX, facts.cursorY});
}

void VesselCardWindow::Renew(const CardFacts& facts) {
    const std::vector<Skin::Fact> rows = RowsOf(facts);
    const auto isInPlace = [this](const Skin::Fact& row) {
        return (findChild<QLabel*>(row.name) == nullptr) == row.value.isEmpty();
    };
    if (!std::all_of(rows.begin(), rows.end(), isInPlace)) {
        const QPoint place = pos();
        ShowFacts(TitleOf(facts), rows, place);
        return move(place);
    }
    for (const Skin::Fact& row : rows) {
        auto* label = findChild<QLabel*>(row.name);
        if (label != nullptr && label->text() != row.value) {
            label->setText(row.value);
        }
    }
}

}  // namespace Tarvik::Ais
