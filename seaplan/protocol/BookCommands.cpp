// SPDX-License-Identifier: MIT
#include "seaplan/protocol/BookCommands.h"

#include <algorithm>
#include <map>
#include <utility>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Jsona.h>
#include <tarvik/util/PointText.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/data/Position.h"
#include "seaplan/protocol/CatalogMessages.h"
#include "seaplan/protocol/Exchange.h"

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

using Interface::VoyCommand;

constexpr int kIntervalOfOldRows = 2;
constexpr double kNearZero = 0.0001;

/// A number written without fraction reads as 0.0 in the floating point form and is read again as an integer.
double Coordinate(const Util::Jsona& row, const char* key) {
    const double value = row.getv(key, 0.0);
    return value > -kNearZero && value < kNearZero ? row.getv(key, 0) : value;
}

PosBookPoint ReadPoint(const Util::Jsona& row) {
    PosBookPoint point;
    point.psn = row.getv("psn", "");
    point.position = PositionText(row);
    point.psr = row.getv("psr", "GC");
    point.pli = StringUtl::ToInt(row.getv("pli", std::to_string(kIntervalOfOldRows)));
    point.psp = KnotsFromWire(StringUtl::ToDouble(row.getv("psp", "10.0")));
    point.pst = StringUtl::ToInt(row.getv("pst", "0"));
    return point;
}

bool AppendRow(int index, const PosBookPoint& point, int speedDecimals, std::string& text) {
    const auto halves = Util::SplitPoint(point.position);
    if (!halves) {
        return false;
    }
    const std::string x(halves->x);
    const std::string y(halves->y);
    text +=
        StringUtl::Format(",\"%d|%s|%s|%s|%s|%d|%.*f|%d\"", index, point.psn.c_str(), x.c_str(), y.c_str(),
                          point.psr.c_str(), point.pli, speedDecimals, WireFromKnots(point.psp), point.pst);
    return true;
}

enum class BlockStep { Id, Position, Send, Refused };
/// Numbers of a book that goes out in one request.
constexpr CodeTable kOneRequestCodes{Code{BlockStep::Id, -1}, Code{BlockStep::Position, -2},
                                     Code{BlockStep::Send, -3}, Code{BlockStep::Refused, -4}};
/// Numbers of a book that goes out in blocks.
constexpr CodeTable kBlocksCodes{Code{BlockStep::Position, -5}, Code{BlockStep::Send, -6},
                                 Code{BlockStep::Refused, -7}};

/// Sends the rows from `begin` to before `end`.
Outcome<BlockStep> SendBlock(const std::string& id, const BookPoints& rows, int begin, int end) {
    std::string text;
    if (!BookRowsText(id, rows, {begin, end, begin > 0}, text)) {
        return BlockStep::Position;
    }
    Util::Jsona reply;
    if (SendText(text, VoyCommand::SaveBookRows, reply) < 0) {
        return BlockStep::Send;
    }
    return IsSuccess(reply) ? Outcome<BlockStep>() : BlockStep::Refused;
}

enum class BookStep { Id, List, None, Date, DateText, Send, Refused, NewId };
using BookOutcome = Outcome<BookStep>;
/// Numbers of LoadPositionBook; ReadPositionBook has the last two.
constexpr CodeTable kLoadBookCodes{Code{BookStep::Id, -1}, Code{BookStep::List, -2},
                                   Code{BookStep::None, kNoBook}, Code{BookStep::Date, -4},
                                   Code{BookStep::DateText, -5}};
/// Numbers of EnsurePositionBook.
constexpr CodeTable kEnsureBookCodes{Code{BookStep::Id, -1},      Code{BookStep::List, -2},
                                     Code{BookStep::Date, -3},    Code{BookStep::Send, -4},
                                     Code{BookStep::Refused, -5}, Code{BookStep::NewId, -6}};
/// Numbers of SetPositionBookDate.
constexpr CodeTable kBookDateCodes{Code{BookStep::Id, -1}, Code{BookStep::Date, -2}, Code{BookStep::Send, -3},
                                   Code{BookStep::Refused, -4}};

/// Sends a text that the server answers with "eid".
BookOutcome Send(const std::string& text, VoyCommand command, Util::Jsona& reply) {
    if (SendText(text, command, reply) < 0) {
        return BookStep::Send;
    }
    return IsSuccess(reply) ? BookOutcome() : BookStep::Refused;
}

BookOutcome Create(const std::string& vi, const std::string& date, std::string& id) {
    std::string serverTime;
    if (ToServerTime(date, serverTime) < 0) {
        return BookStep::Date;
    }
    Util::Jsona reply;
    if (const auto sent = Send(CreateBookText(vi, serverTime), VoyCommand::CreateBook, reply);
        sent.Failed()) {
        return sent;
    }
    id = reply.getv("psb", "");
    return id.empty() ? BookStep::NewId : BookOutcome();
}

BookOutcome Ensure(const std::string& vi, const std::string& date, std::string& id) {
    id.clear();
    if (vi.empty()) {
        return BookStep::Id;
    }
    Util::Jsona reply;
    if (!AskList(VoyageIdText(vi), VoyCommand::LoadBook, reply)) {
        return BookStep::List;
    }
    if (reply.size() > 0) {
        id = reply.get(0).getv("pbi", "");
        return {};
    }
    return Create(vi, date, id);
}

BookOutcome Read(const Util::Jsona& element, VoyPositionBook& book) {
    book.pbi = element.getv("pbi", "");
    std::string local;
    if (FromServerTime(element.getv("eta", ""), local) < 0) {
        return BookStep::Date;
    }
    const auto eta = Util::DateTimeUtl::Parse(local);
    if (!eta) {
        return BookStep::DateText;
    }
    book.eta = *eta;
    std::map<int, PosBookPoint> sorted;
    const Util::Jsona list = element.get("pb");
    for (int i = 0; i < list.size(); ++i) {
        const Util::Jsona row = list.get(i);
        sorted[row.getv("lon", -1)] = ReadPoint(row);
    }
    for (auto& [number, point] : sorted) {
        book.points.push_back(std::move(point));
    }
    return {};
}

BookOutcome Load(const std::string& vi, VoyPositionBook& book) {
    if (vi.empty()) {
        return BookStep::Id;
    }
    Util::Jsona reply;
    if (!AskList(VoyageIdText(vi), VoyCommand::LoadBook, reply)) {
        return BookStep::List;
    }
    return reply.size() < 1 ? BookStep::None : Read(reply.get(0), book);
}

BookOutcome SetDate(const std::string& id, const std::string& date) {
    if (id.empty()) {
        return BookStep::Id;
    }
    std::string serverTime;
    if (ToServerTime(date, serverTime) < 0) {
        return BookStep::Date;
    }
    Util::Jsona reply;
    return Send(BookDateText(id, serverTime), VoyCommand::SetBookDate, reply);
}

}  // namespace

std::string PositionText(const Util::Jsona& row) {
    const auto x = static_cast<float>(Coordinate(row, "xc"));
    const auto y = static_cast<float>(Coordinate(row, "yc"));
    return PositionText(GeoPoint{static_cast<double>(x), static_cast<double>(y)});
}

int ReadPositionBook(const Util::Jsona& element, VoyPositionBook& book) {
    return kLoadBookCodes.Of(Read(element, book));
}

bool BookRowsText(const std::string& id, const BookPoints& rows, const BookBlock& block, std::string& text) {
    const int speedDecimals = static_cast<int>(rows.size()) < kBookBlockRows ? 3 : 1;
    std::string made = "[\"" + id + (block.append ? "\",\"1\"" : "\",\"0\"");
    for (int i = block.first; i < block.end; ++i) {
        if (!AppendRow(i, rows[static_cast<std::size_t>(i)], speedDecimals, made)) {
            return false;
        }
    }
    text = made + "]";
    return true;
}

std::string CreateBookText(const std::string& vi, const std::string& serverTime) {
    return StringUtl::Format("{vi:\"%s\",dt:\"%s\"}", vi.c_str(), serverTime.c_str());
}

std::string BookDateText(const std::string& id, const std::string& serverTime) {
    return StringUtl::Format("{psb:\"%s\",dt:\"%s\"}", id.c_str(), serverTime.c_str());
}

int LoadPositionBook(const std::string& vi, VoyPositionBook& book) {
    return kLoadBookCodes.Of(Load(vi, book));
}

int EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id) {
    return kEnsureBookCodes.Of(Ensure(vi, date, id));
}

int SetPositionBookDate(const std::string& id, const std::string& date) {
    return kBookDateCodes.Of(SetDate(id, date));
}

int SavePositionBookRows(const std::string& id, const BookPoints& rows) {
    if (id.empty()) {
        return kOneRequestCodes.Of(BlockStep::Id);
    }
    const int count = static_cast<int>(rows.size());
    if (count < kBookBlockRows) {
        return kOneRequestCodes.Of(SendBlock(id, rows, 0, count));
    }
    for (int begin = 0; begin < count; begin += kBookBlockRows) {
        const auto sent = SendBlock(id, rows, begin, std::min(begin + kBookBlockRows, count));
        if (sent.Failed()) {
            return kBlocksCodes.Of(sent);
        }
    }
    return 0;
}

}  // namespace Tarvik::Seaplan
