// SPDX-License-Identifier: MIT
#include "host/client/shell/StatusLine.h"

#include <QStatusBar>
#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Client {

namespace {

constexpr int kOnTheLeft = 2;  ///< labels there: user and connection

QLabel* MakeLabel(QStatusBar& line, const char* name) {
    auto* label = new QLabel(&line);
    label->setObjectName(name);
    return label;
}

}  // namespace

StatusLine::StatusLine(QStatusBar& line, ClientSession& session)
    : line_(line),
      session_(session),
      user_(MakeLabel(line, "user")),
      connection_(MakeLabel(line, "connection")),
      cursor_(MakeLabel(line, "cursorPosition")),
      zone_(MakeLabel(line, "timeZone")) {
    line.setObjectName("statusLine");
    line.setSizeGripEnabled(false);
    cursor_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line.addWidget(user_);
    line.addWidget(connection_);
    line.addPermanentWidget(cursor_);
    line.addPermanentWidget(zone_);
    bindings_.Keep(Interface::Subscribe(Interface::Bus::ChartCursor,
                                        [this](const Interface::ChartPlace& place) { ShowCursor(place); }));
    bindings_.Keep(Interface::Subscribe(Interface::Bus::SwitchTimeZone,
                                        [this](const std::string* zone) { ShowZone(zone); }));
    bindings_.Keep(Interface::Subscribe(Interface::Bus::TellStatus,
                                        [this](const Interface::StatusWord& word) { ShowWord(word); }));
}

QString StatusLine::Word(const char* key) const {
    return QString::fromStdString(session_.Texts().Text("Client", key));
}

void StatusLine::ApplyTexts() {
    ShowZone(nullptr);
    if (!cursorKnown_) {
        cursor_->setText(Word("NO_POSITION"));
    }
    const std::pair<QLabel*, const char*> labels[] = {{user_, "USER_NAME"},
                                                      {connection_, "CONNECTION_NAME"},
                                                      {cursor_, "CURSOR_NAME"},
                                                      {zone_, "ZONE_NAME"}};
    for (const auto& [shown, key] : labels) {
        shown->setAccessibleName(Word(key));
        shown->setToolTip(Word(key));
    }
    ShowConnection();
}

void StatusLine::ShowConnection() {
    const QString user = QString::fromStdString(session_.Services().User());
    user_->setText(!session_.IsRemote() ? Word("LOCAL_USER") : user.isEmpty() ? Word("NOBODY") : user);
    const Connection& now = session_.Services().Watch().Now();
    const char* key = !now.loggedIn     ? "OFFLINE"
                      : now.silentSince ? "NO_ANSWER"
                      : now.backSince   ? "CONNECTED_AGAIN"
                                        : "CONNECTED";
    const auto since = now.silentSince ? now.silentSince : now.backSince;
    connection_->setText(now.loggedIn && since ? Word(key).arg(TimeText(*since)) : Word(key));
    const QString reason = QString::fromStdString(now.reason);
    connection_->setToolTip(reason.isEmpty() ? Word("CONNECTION_NAME") : reason);
}

QString StatusLine::TimeText(const Util::_datetime_t& utc) const {
    const std::string& zone = session_.Services().TimeZone();
    const auto local = Util::DateTimeUtl::ConvertFromUTC(utc, zone);
    const auto today = Util::DateTimeUtl::ConvertFromUTC(Util::_datetime_t::gmt_now(), zone).date();
    return QString::fromStdString(local.fmt(local.date() == today ? "%H:%M" : Util::kMinuteFormat));
}

void StatusLine::ShowCursor(const Interface::ChartPlace& place) {
    cursorKnown_ = true;
    cursor_->setText(QString::fromStdString(Server::FormatPosition({place.longitude, place.latitude})));
}

void StatusLine::ShowZone(const std::string* zone) {
    // Times of the outage are told in the zone too.
    ShowConnection();
    zone_->setText(QString::fromStdString(zone ? *zone : session_.Services().TimeZone()));
}

void StatusLine::ShowWord(const Interface::StatusWord& word) {
    QLabel*& label = words_[word.owner];
    if (label == nullptr) {
        label = MakeLabel(line_, ("word_" + word.owner).c_str());
        label->setTextFormat(Qt::PlainText);
        // The others took theirs before the theme's came.
        label->setFont(connection_->font());
        line_.insertPermanentWidget(kOnTheLeft, label);
    }
    label->setText(QString::fromStdString(word.text));
    label->setToolTip(QString::fromStdString(word.tip));
    label->setVisible(!word.text.empty());
}

}  // namespace Tarvik::Client
