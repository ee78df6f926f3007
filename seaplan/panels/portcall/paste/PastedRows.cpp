// SPDX-License-Identifier: MIT
/// Heads are recognised by the longest title that they begin with. Without
/// heads each column goes to the kind that most of its cells can be read as,
/// tried from the narrowest to the widest, so that a number is no port.
#include "seaplan/panels/portcall/paste/PastedRows.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kMostSpeed = 100;
constexpr double kMostPercent = 99.4;  ///< more is told as 100%, at which no ship moves
constexpr double kLeastGuessedSpeed = 4;
constexpr double kMostGuessedSpeed = 60;

struct EnglishHead {
    std::string_view word;
    int column;
};
/// What schedules call their columns, beside the table's own titles.
constexpr EnglishHead kEnglishHeads[] = {
    {"port", ColPort},          {"harbo", ColPort},        {"un/locode", ColPort},
    {"unlocode", ColPort},      {"locode", ColPort},       {"purpose", ColPurpose},
    {"speed", ColSpeed},        {"weather", ColWeather},   {"port time", ColPortTime},
    {"port stay", ColPortTime}, {"stay", ColPortTime},     {"eta", ColEta},
    {"arriv", ColEta},          {"etd", ColEtd},           {"depart", ColEtd},
    {"sail", ColEtd},           {"distance", ColDistance}, {"miles", ColDistance},
    {"sea", ColSteamTime},      {"no.", ColOrder}};

std::string Small(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

/// A number as a whole, with a point or a comma, before one of these endings;
/// nothing for another text.
std::optional<double> NumberOf(const std::string& text, std::initializer_list<std::string_view> endings) {
    std::size_t digits = 0;
    std::string number;
    while (digits < text.size() &&
           std::string_view("0123456789.,").find(text[digits]) != std::string_view::npos) {
        number.push_back(text[digits] == ',' ? '.' : text[digits]);
        ++digits;
    }
    std::string rest = Small(text.substr(digits));
    rest.erase(0, rest.find_first_not_of(' '));
    const bool ends = rest.empty() || std::find(endings.begin(), endings.end(), rest) != endings.end();
    if (!ends || number.empty() || number.front() == '.' ||
        std::count(number.begin(), number.end(), '.') > 1) {
        return std::nullopt;
    }
    return Util::StringUtl::ToDouble(number);
}

std::string PurposeOf(const std::string& text) {
    for (const Interface::Purpose& purpose : Interface::kPurposes) {
        if (Small(text) == Small(purpose.code) || Small(text) == Small(purpose.text)) {
            return purpose.code;
        }
    }
    return {};
}

std::string SpeedOf(const std::string& text) {
    const auto speed = NumberOf(text, {"kn", "kt", "kts", "knots"});
    return speed && *speed > 0 && *speed <= kMostSpeed ? SpeedText(*speed) : std::string();
}

std::string WeatherOf(const std::string& text) {
    const auto percent = NumberOf(text, {"%"});
    return percent && *percent <= kMostPercent ? PercentText(*percent) : std::string();
}

std::string StayOf(const std::string& text) {
    const auto stay = NumberOf(text, {});
    return stay ? TwoDecimals(*stay) : std::string();
}

/// What a text says in a column of the table; empty where it says nothing.
std::string ValueOf(int column, const std::string& text, const PortOfText& port) {
    switch (column) {
        case ColPort:
            return port(text);
        case ColPurpose:
            return PurposeOf(text);
        case ColSpeed:
            return SpeedOf(text);
        case ColWeather:
            return WeatherOf(text);
        case ColPortTime:
            return StayOf(text);
        case ColEta:
        case ColEtd:
            return ReadPastedTime(text).value_or("");
        default:
            return {};
    }
}

int ColumnOfHead(const std::string& head) {
    const std::string small = Small(head);
    std::size_t longest = 0;
    int found = PastedRows::kNoColumn;
    const auto look = [&](const std::string& title, int column) {
        if (title.size() > longest && small.starts_with(title)) {
            longest = title.size();
            found = column;
        }
    };
    for (int column = 0; column < kPortCallColumnCount; ++column) {
        look(Small(TextOfKey(kPortCallColumns[static_cast<std::size_t>(column)].title)), column);
    }
    for (const EnglishHead& known : kEnglishHeads) {
        look(std::string(known.word), known.column);
    }
    return found;
}

using Lines = std::vector<std::vector<std::string>>;

/// Whether the first row names columns and holds nothing else that is known. A
/// word alone may be a port that nobody knows, unless it is all of a title.
bool HasHeads(const std::vector<std::string>& row, const PortOfText& port) {
    int filled = 0;
    int named = 0;
    bool plain = true;
    for (const std::string& cell : row) {
        if (ReadPastedTime(cell) || !port(cell).empty() || NumberOf(cell, {"%", "kn", "kts"})) {
            return false;
        }
        filled += cell.empty() ? 0 : 1;
        named += ColumnOfHead(cell) != PastedRows::kNoColumn ? 1 : 0;
        plain = plain && cell.find(' ') == std::string::npos;
    }
    return named > 1 || (named == 1 && filled == 1 && plain);
}

/// Whether a cell looks as one of a column does, where no head says so.
bool LooksLike(int column, const std::string& text, const PortOfText& port) {
    if (column == ColWeather) {
        return text.ends_with('%') && !WeatherOf(text).empty();
    }
    if (column == ColSpeed) {
        const double speed = NumberOf(text, {"kn", "kt", "kts", "knots"}).value_or(0);
        return speed >= kLeastGuessedSpeed && speed <= kMostGuessedSpeed;
    }
    return !ValueOf(column, text, port).empty();
}

/// Whether cells count 1, 2, 3 and on.
bool IsOrder(const Lines& lines, std::size_t at) {
    for (std::size_t row = 0; row < lines.size(); ++row) {
        if (lines[row][at] != std::to_string(row + 1)) {
            return false;
        }
    }
    return true;
}

int GuessColumn(const Lines& lines, std::size_t at, const std::vector<int>& taken, const PortOfText& port) {
    constexpr int kNarrowestFirst[] = {ColEta, ColEtd, ColWeather, ColPurpose, ColPort, ColSpeed};
    if (IsOrder(lines, at)) {
        return ColOrder;
    }
    for (const int column : kNarrowestFirst) {
        if (column != ColPort && std::find(taken.begin(), taken.end(), column) != taken.end()) {
            continue;
        }
        std::size_t alike = 0;
        std::size_t filled = 0;
        for (const auto& line : lines) {
            filled += line[at].empty() ? 0 : 1;
            alike += !line[at].empty() && LooksLike(column, line[at], port) ? 1 : 0;
        }
        if (alike > 0 && 2 * alike >= filled) {
            return column;
        }
    }
    return PastedRows::kNoColumn;
}

/// A list without any known port still names ports, in its first column of
/// words.
void GuessUnknownPorts(const Lines& lines, std::vector<int>& columns) {
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const bool words = std::any_of(lines.begin(), lines.end(), [at](const auto& line) {
            return !line[at].empty() && !NumberOf(line[at], {});
        });
        if (columns[at] == PastedRows::kNoColumn && words) {
            columns[at] = ColPort;
            return;
        }
    }
}

PastedCell CellOf(int column, const std::string& text, const PortOfText& port) {
    PastedCell cell{text};
    const bool entered =
        column == ColEta || column == ColEtd ||
        (column != PastedRows::kNoColumn && kPortCallColumns[static_cast<std::size_t>(column)].entered);
    // The first row of a voyage shows a speed of none.
    const bool noSpeed = column == ColSpeed && NumberOf(text, {}) == 0.0;
    if (text.empty() || !entered || noSpeed) {
        return cell;
    }
    cell.value = ValueOf(column, text, port);
    cell.known = !cell.value.empty();
    if (!cell.known && column == ColPort && static_cast<unsigned char>(text.front()) < 0x80U) {
        cell.value = text;  // as it would be typed
    }
    return cell;
}

/// Of several columns of one kind one stays: the first, of ports the first that
/// is known.
void KeepOneOfEach(PastedRows& pasted) {
    for (std::size_t at = 0; at < pasted.columns.size(); ++at) {
        const auto first = std::find(pasted.columns.begin(), pasted.columns.end(), pasted.columns[at]);
        const auto before = static_cast<std::size_t>(first - pasted.columns.begin());
        if (pasted.columns[at] == PastedRows::kNoColumn || before == at) {
            continue;
        }
        for (auto& row : pasted.rows) {
            const bool better = pasted.columns[at] == ColPort && row[at].known && !row[at].value.empty() &&
                                (!row[before].known || row[before].value.empty());
            if (better) {
                row[before].value = row[at].value;
                row[before].known = true;
            }
            row[at] = {row[at].text};
        }
        pasted.columns[at] = PastedRows::kNoColumn;
    }
}

/// Whether a text tells a speed in another unit on offer than this one.
bool TellsOtherUnit(const std::string& text, std::string_view unit) {
    const std::string small = Small(text);
    const auto units = OfferedUnits(UnitKind::Speed);
    return std::any_of(units.begin(), units.end(), [&small, unit](std::string_view other) {
        const auto words = WordsOfSpeedUnit(other);
        return other != unit && std::any_of(words.begin(), words.end(), [&small](std::string_view word) {
                   return small.find(word) != std::string::npos;
               });
    });
}

}  // namespace

void LeaveOtherUnits(PastedRows& pasted, const std::string& speedUnit) {
    for (std::size_t at = 0; at < pasted.columns.size(); ++at) {
        if (pasted.columns[at] != ColSpeed) {
            continue;
        }
        const bool wholeColumn = at < pasted.heads.size() && TellsOtherUnit(pasted.heads[at], speedUnit);
        for (auto& row : pasted.rows) {
            PastedCell& cell = row[at];
            if (!cell.text.empty() && (wholeColumn || TellsOtherUnit(cell.text, speedUnit))) {
                cell.value.clear();
                cell.known = false;
            }
        }
    }
}

PastedRows UnderstandPasted(const PastedText& text, const PortOfText& port) {
    PastedRows pasted;
    pasted.cut = text.cut;
    Lines lines = text.rows;
    if (lines.empty()) {
        return pasted;
    }
    if (HasHeads(lines.front(), port)) {
        for (const std::string& head : lines.front()) {
            pasted.columns.push_back(ColumnOfHead(head));
        }
        pasted.heads = lines.front();
        lines.erase(lines.begin());
    } else {
        for (std::size_t at = 0; at < lines.front().size(); ++at) {
            pasted.columns.push_back(GuessColumn(lines, at, pasted.columns, port));
        }
        if (std::find(pasted.columns.begin(), pasted.columns.end(), ColPort) == pasted.columns.end()) {
            GuessUnknownPorts(lines, pasted.columns);
        }
    }
    if (lines.size() > kMostPastedRows) {
        lines.resize(kMostPastedRows);
        pasted.cut = true;
    }
    for (const auto& line : lines) {
        std::vector<PastedCell>& row = pasted.rows.emplace_back();
        for (std::size_t at = 0; at < line.size(); ++at) {
            row.push_back(CellOf(pasted.columns[at], line[at], port));
        }
    }
    KeepOneOfEach(pasted);
    return pasted;
}

}  // namespace Tarvik::Seaplan
