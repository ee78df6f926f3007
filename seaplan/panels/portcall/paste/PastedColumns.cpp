// SPDX-License-Identifier: MIT
/// Without heads each column goes to the kind that most of its cells can be read as, tried from the narrowest
/// to the widest, so that a number is no port. Own method; one reading of each cell a kind.
#include "seaplan/panels/portcall/paste/PastedColumns.h"

#include <algorithm>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/paste/PastedText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastGuessedSpeed = 4;
constexpr double kMostGuessedSpeed = 60;

/// What schedules call their columns.
constexpr HeadTitle kEnglishHeads[] = {
    {"port", ColPort},          {"harbo", ColPort},        {"un/locode", ColPort},
    {"unlocode", ColPort},      {"locode", ColPort},       {"purpose", ColPurpose},
    {"speed", ColSpeed},        {"weather", ColWeather},   {"port time", ColPortTime},
    {"port stay", ColPortTime}, {"stay", ColPortTime},     {"eta", ColEta},
    {"arriv", ColEta},          {"etd", ColEtd},           {"depart", ColEtd},
    {"sail", ColEtd},           {"distance", ColDistance}, {"miles", ColDistance},
    {"sea", ColSteamTime},      {"no.", ColOrder}};

int ColumnOfHead(const std::string& head) {
    std::vector<std::string> titles;
    titles.reserve(kPortCallColumnCount);
    for (int column = 0; column < kPortCallColumnCount; ++column) {
        titles.push_back(TextOfKey(kPortCallColumns[static_cast<std::size_t>(column)].title));
    }
    return KindOfHead(head, titles, kEnglishHeads);
}

/// Whether the first row names columns and holds nothing else that is known. A
/// word alone may be a port that nobody knows, unless it is all of a title.
bool HasHeads(const std::vector<std::string>& row, const PortOfText& port) {
    int filled = 0;
    int named = 0;
    bool plain = true;
    for (const std::string& cell : row) {
        if (ReadPastedTime(cell) || !port(cell).empty() || PastedNumber(cell, {"%", "kn", "kts"})) {
            return false;
        }
        filled += cell.empty() ? 0 : 1;
        named += ColumnOfHead(cell) != kNoColumn ? 1 : 0;
        plain = plain && cell.find(' ') == std::string::npos;
    }
    return named > 1 || (named == 1 && filled == 1 && plain);
}

/// Whether a cell looks as one of a column does, where no head says so.
bool LooksLike(int column, const std::string& text, const PortOfText& port) {
    if (column == ColWeather) {
        return text.ends_with('%') && !PastedValue(ColWeather, text, port).empty();
    }
    if (column == ColSpeed) {
        const double speed = PastedSpeed(text).value_or(0);
        return speed >= kLeastGuessedSpeed && speed <= kMostGuessedSpeed;
    }
    return !PastedValue(column, text, port).empty();
}

int GuessColumn(const PastedLines& lines, std::size_t at, const std::vector<int>& taken,
                const PortOfText& port) {
    constexpr int kNarrowestFirst[] = {ColEta, ColEtd, ColWeather, ColPurpose, ColPort, ColSpeed};
    if (CountsOn(lines, at)) {
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
    return kNoColumn;
}

/// A list without any known port still names ports, in its first column of
/// words.
void GuessUnknownPorts(const PastedLines& lines, std::vector<int>& columns) {
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const bool words = std::any_of(lines.begin(), lines.end(), [at](const auto& line) {
            return !line[at].empty() && !PastedNumber(line[at], {});
        });
        if (columns[at] == kNoColumn && words) {
            columns[at] = ColPort;
            return;
        }
    }
}

}  // namespace

PastedColumns UnderstandColumns(const PastedLines& lines, const PortOfText& port) {
    PastedColumns found;
    if (lines.empty()) {
        return found;
    }
    if (HasHeads(lines.front(), port)) {
        found.heads = lines.front();
        found.columns.reserve(found.heads.size());
        for (const std::string& head : found.heads) {
            found.columns.push_back(ColumnOfHead(head));
        }
        return found;
    }
    found.columns.reserve(lines.front().size());
    for (std::size_t at = 0; at < lines.front().size(); ++at) {
        found.columns.push_back(GuessColumn(lines, at, found.columns, port));
    }
    if (std::find(found.columns.begin(), found.columns.end(), ColPort) == found.columns.end()) {
        GuessUnknownPorts(lines, found.columns);
    }
    return found;
}

}  // namespace Tarvik::Seaplan
