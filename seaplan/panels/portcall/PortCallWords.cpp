// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortCallWords.h"

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Units.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/controllers/ScheduleCalculation.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// Number of the first row with this port, as its order cell tells it; empty without one.
std::string RowNumber(const PortCallTable& table, const std::string& port) {
    for (int row = 0; row < table.RowCount(); ++row) {
        if (table.Cell(row, ColPort) == port) {
            return table.Cell(row, ColOrder);
        }
    }
    return {};
}

}  // namespace

std::string CauseText(const ScheduleFault& fault, const PortCallTable& table) {
    using Cause = ScheduleFault::Cause;
    switch (fault.cause) {
        case Cause::None:
            return {};
        case Cause::UnknownPort:
            return Text(TextIds::IDS_VIEW_FAULTPORT, {RowNumber(table, fault.port), fault.port});
        case Cause::NoRoute:
            return Text(TextIds::IDS_VIEW_FAULTROUTE);
        case Cause::Connection:
            return Text(TextIds::IDS_VIEW_FAULTCONNECTION);
        case Cause::Refused:
            return Text(TextIds::IDS_VIEW_FAULTREFUSED);
        case Cause::Figures:
            return Text(TextIds::IDS_VIEW_FAULTFIGURES);
        case Cause::NotCalculated:
            return Text(TextIds::IDS_VIEW_FAULTOTHERROUTE);
    }
    return {};
}

std::string BookCauseText(const ScheduleFault& fault, const PosBookData& book, const PortCallTable& table) {
    const int slow = FirstSlowerRow(book, Util::KmhFromKnots(kLeastRowKnots));
    return fault.cause == ScheduleFault::Cause::Figures && slow >= 0
               ? Text(TextIds::IDS_VIEW_FAULTBOOKSPEED, {std::to_string(slow + 1)})
               : CauseText(fault, table);
}

std::string LossText(const PortCallSheet& sheet, const std::string& voyage) {
    if (sheet.IsUnkeptTable()) {
        return Text(TextIds::IDS_VIEW_LOSTTABLE, {std::to_string(sheet.table.ReadAllRows().size())});
    }
    if (sheet.aisCorrectionPending) {
        return Text(TextIds::IDS_VIEW_LOSTFIX, {voyage});
    }
    if (const int rows = sheet.ChangedRows(); rows > 0) {
        return Text(TextIds::IDS_VIEW_LOSTROWS, {voyage, std::to_string(rows)});
    }
    // Nothing typed differs from what is stored: what is lost is a route, unless it is still to be found.
    const bool route = sheet.state.changed && sheet.note.kind != PortCallNote::Kind::Unfinished;
    return Text(route ? TextIds::IDS_VIEW_LOSTROUTE : TextIds::IDS_VIEW_LOSTVOYAGE, {voyage});
}

PortCallNote NoteOfKnownLegs(const std::optional<Util::_datetime_t>& since, const std::string& zone) {
    if (!since) {
        return {};
    }
    const auto there = Util::DateTimeUtl::ConvertFromUTC(*since, zone);
    return {PortCallNote::Kind::KnownLegs, there.fmt(Util::kDayFormat)};
}

PortCallNote NoteOfChoices(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names) {
        joined += (joined.empty() ? "" : ", ") + name;
    }
    return joined.empty() ? PortCallNote() : PortCallNote{PortCallNote::Kind::ChosenWay, {}, joined};
}

std::string SignedText(double value, std::string (*digits)(double)) {
    const std::string text = digits(value);
    if (text == digits(0) || text == digits(-0.0)) {
        return digits(0);
    }
    return value > 0 ? "+" + text : text;
}

std::string NoteText(const PortCallNote& note) {
    switch (note.kind) {
        case PortCallNote::Kind::None:
            return {};
        case PortCallNote::Kind::Unfinished:
            return Text(TextIds::IDS_VIEW_UNFINISHED);
        case PortCallNote::Kind::KnownLegs:
            return Text(TextIds::IDS_VIEW_KNOWNLEGS, {note.since});
        case PortCallNote::Kind::ChosenWay:
            return Text(TextIds::IDS_VIEW_WAYSCHOSEN, {note.ways});
    }
    return {};
}

}  // namespace Tarvik::Seaplan
