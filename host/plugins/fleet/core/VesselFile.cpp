// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/core/VesselFile.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

namespace Tarvik::Fleet {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

struct Column {
    std::string_view name;
    std::string VesselDraft::*field;
};

constexpr Column kColumns[] = {{"name", &VesselDraft::name},   {"mmsi", &VesselDraft::mmsi},
                               {"imo", &VesselDraft::imo},     {"callsign", &VesselDraft::callSign},
                               {"type", &VesselDraft::type},   {"length", &VesselDraft::length},
                               {"speed", &VesselDraft::speed}, {"servicespeed", &VesselDraft::speed}};

/// The letters of a column's name; "Call sign" and "call_sign" are one.
std::string Letters(const std::string& title) {
    std::string letters;
    for (const char c : title) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return letters;
}

char SeparatorOf(std::string_view firstLine) {
    char best = ',';
    for (const char candidate : {';', '\t'}) {
        if (std::count(firstLine.begin(), firstLine.end(), candidate) >
            std::count(firstLine.begin(), firstLine.end(), best)) {
            best = candidate;
        }
    }
    return best;
}

struct Row {
    int line = 0;
    std::vector<std::string> fields{1};

    bool IsEmpty() const {
        return std::all_of(fields.begin(), fields.end(), [](const std::string& f) { return f.empty(); });
    }
};

std::vector<Row> Split(std::string_view text, char separator) {
    std::vector<Row> rows{{1}};
    bool quoted = false;
    int line = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        std::string& field = rows.back().fields.back();
        line += c == '\n' ? 1 : 0;
        if (quoted && c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
            field += '"';
            ++i;
        } else if (c == '"' && (quoted || field.empty())) {
            quoted = !quoted;
        } else if (!quoted && c == separator) {
            rows.back().fields.emplace_back();
        } else if (!quoted && c == '\n') {
            rows.push_back({line});
        } else if (quoted || c != '\r') {
            field += c;
        }
    }
    return rows;
}

}  // namespace

std::optional<std::vector<FileRow>> ReadVesselFile(const std::string& text) {
    std::string_view rest = text;
    if (rest.starts_with(kMark)) {
        rest.remove_prefix(kMark.size());
    }
    const std::vector<Row> rows = Split(rest, SeparatorOf(rest.substr(0, rest.find('\n'))));
    std::vector<std::string VesselDraft::*> fields;
    for (const std::string& title : rows.front().fields) {
        const auto* column =
            std::find_if(std::begin(kColumns), std::end(kColumns),
                         [letters = Letters(title)](const Column& c) { return c.name == letters; });
        fields.push_back(column == std::end(kColumns) ? nullptr : column->field);
    }
    if (std::find(fields.begin(), fields.end(), &VesselDraft::name) == fields.end()) {
        return std::nullopt;
    }
    std::vector<FileRow> read;
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        if (row->IsEmpty()) {
            continue;
        }
        FileRow vessel{row->line, {}};
        for (std::size_t i = 0; i < std::min(fields.size(), row->fields.size()); ++i) {
            if (fields[i] != nullptr) {
                vessel.draft.*fields[i] = row->fields[i];
            }
        }
        read.push_back(std::move(vessel));
    }
    return read;
}

}  // namespace Tarvik::Fleet
