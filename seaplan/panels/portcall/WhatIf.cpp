// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/WhatIf.h"

#include <algorithm>
#include <cmath>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/calculation/WhatIf.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/texts/WhatIfTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kHalfKnot = 0.5;
constexpr WhatIfLine kLines[] = {WhatIfLine::Departure, WhatIfLine::OneSpeed, WhatIfLine::Faster,
                                 WhatIfLine::Slower};

/// A time as it stands in the table, with or without its seconds.
std::optional<Util::_datetime_t> ReadArrival(const std::string& text) {
    constexpr std::size_t kWithoutSeconds = kTimeTextLength - 3;
    return Util::DateTimeUtl::Parse(text.size() == kWithoutSeconds ? text + ":00" : text);
}

/// How much earlier or later a time is than another one.
std::string ShiftText(const Util::_datetime_t& now, const Util::_datetime_t& then) {
    const double hours = Util::DateTimeUtl::Diff(then, now);
    const std::string text = OneDecimal(std::abs(hours));
    return text == OneDecimal(0) ? Text(TextIds::IDS_VIEW_WHATIFSAME)
           : hours < 0           ? Text(TextIds::IDS_VIEW_WHATIFEARLIER, {text})
                                 : Text(TextIds::IDS_VIEW_WHATIFLATER, {text});
}

TextId EditOf(WhatIfLine line) {
    return line == WhatIfLine::Departure  ? TextIds::IDS_VIEW_EDITDEPARTURE
           : line == WhatIfLine::OneSpeed ? TextIds::IDS_VIEW_EDITONESPEED
                                          : TextIds::IDS_VIEW_EDITHALFKNOT;
}

/// Whether the table would show another schedule.
bool Differs(const PortCallRows& a, const PortCallRows& b) {
    return !std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [](const VoyPortCall& x, const VoyPortCall& y) {
            return x.eta.fmt(kTimeFormat) == y.eta.fmt(kTimeFormat) &&
                   SpeedText(static_cast<double>(x.psp)) == SpeedText(static_cast<double>(y.psp));
        });
}

}  // namespace

void WhatIf::OnOpen() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    open_ = !open_;
    port_ = -1;
    typed_.reset();
    Follow();
}

void WhatIf::OnPortChosen(int index) {
    port_ = index;
    typed_.reset();
    Follow();
}

void WhatIf::OnArrivalTyped(const std::string& text) {
    typed_ = text;
    Follow();
}

/// The schedule in question; nothing, with the reason in the strip's note, where there is none.
std::optional<WhatIf::Question> WhatIf::Ask(WhatIfState& state) const {
    const PortCallSheet& sheet = desk_.Sheet();
    Question question;
    if (desk_.IsCorrected()) {
        state.note = Text(TextIds::IDS_VIEW_WHATIFCORRECTED);
        return std::nullopt;
    }
    if (sheet.ReadUnrounded(question.rows) != 0 || question.rows.size() < 2 ||
        sheet.state.summary.averageSpeed.empty() || !sheet.stored.IsRouteOf(sheet.table)) {
        state.note = Text(TextIds::IDS_VIEW_WHATIFNEEDS);
        return std::nullopt;
    }
    if (RecomputeSchedule(question.rows, question.unchanged) != 0) {
        state.note = Text(TextIds::IDS_VIEW_WHATIFNEEDS);
        return std::nullopt;
    }
    for (const VoyPortCall& row : question.rows) {
        state.ports.push_back(row.ppn);
    }
    state.ports.erase(state.ports.begin());
    const int last = static_cast<int>(state.ports.size()) - 1;
    state.port = port_ < 0 || port_ > last ? last : port_;
    question.target = static_cast<std::size_t>(state.port) + 1;
    state.arrival = typed_.value_or(question.rows[question.target].eta.fmt(kTimeFormat));
    question.arrival = ReadArrival(state.arrival);
    return question;
}

bool WhatIf::Answer(const Question& question, WhatIfLine line, PortCallRows& out) const {
    const auto& [rows, unchanged, target, arrival] = question;
    const bool asksForArrival = line == WhatIfLine::Departure || line == WhatIfLine::OneSpeed;
    if (asksForArrival && !arrival) {
        return false;
    }
    const WhatIfAnswer answer = line == WhatIfLine::Departure  ? LatestDeparture(rows, target, *arrival, out)
                                : line == WhatIfLine::OneSpeed ? OneSpeedFor(rows, target, *arrival, out)
                                : line == WhatIfLine::Faster   ? WithOtherSpeeds(rows, target, kHalfKnot, out)
                                                             : WithOtherSpeeds(rows, target, -kHalfKnot, out);
    if (answer == WhatIfAnswer::Found) {
        KeepPortIds(rows, out);
    }
    return answer == WhatIfAnswer::Found;
}

WhatIfState::Line WhatIf::Tell(const Question& question, WhatIfLine line) const {
    const VoyPortCall& now = question.rows[question.target];
    PortCallRows then;
    if (!Answer(question, line, then)) {
        const bool unread = !question.arrival && line != WhatIfLine::Faster && line != WhatIfLine::Slower;
        return {Text(unread                         ? TextIds::IDS_VIEW_WHATIFNOTIME
                     : line == WhatIfLine::OneSpeed ? TextIds::IDS_VIEW_WHATIFTOOEARLY
                                                    : TextIds::IDS_VIEW_WHATIFNOSPEED)};
    }
    const bool canTake = Differs(question.unchanged, then);
    const Util::_datetime_t& start = then.front().etd;
    const std::string eta = then[question.target].eta.fmt(kTimeFormat);
    if (line == WhatIfLine::Departure) {
        return {Text(TextIds::IDS_VIEW_WHATIFLEAVE,
                     {start.fmt(kTimeFormat), ShiftText(question.rows.front().etd, start)}),
                canTake};
    }
    if (line == WhatIfLine::OneSpeed) {
        PortCallRows shown;
        FromStandardUnits(then, desk_.Sheet().Units(), shown);
        const double speed = shown.size() > question.target ? shown[question.target].psp : 0;
        return {Text(TextIds::IDS_VIEW_WHATIFSPEED, {SpeedText(speed), desk_.Sheet().state.speedUnit, eta}),
                canTake};
    }
    const TextId text =
        line == WhatIfLine::Faster ? TextIds::IDS_VIEW_WHATIFFASTER : TextIds::IDS_VIEW_WHATIFSLOWER;
    return {Text(text, {eta, ShiftText(now.eta, then[question.target].eta)}), canTake};
}

void WhatIf::Follow() {
    WhatIfState state;
    state.open = open_;
    if (const auto question = open_ ? Ask(state) : std::nullopt) {
        for (const WhatIfLine line : kLines) {
            state.lines[static_cast<std::size_t>(line)] = Tell(*question, line);
        }
    }
    if (state != shown_) {
        shown_ = state;
        desk_.View().Questions().ShowWhatIf(shown_);
    }
}

void WhatIf::OnTake(WhatIfLine line) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    WhatIfState state;
    const auto question = open_ ? Ask(state) : std::nullopt;
    PortCallRows rows;
    if (!question || !Answer(*question, line, rows) || desk_.ShowChangedRows(rows) != 0) {
        return;
    }
    desk_.History().Take({EditOf(line)});
}

}  // namespace Tarvik::Seaplan
