// SPDX-License-Identifier: MIT
#include "host/geo/CsvTable.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <tarvik/util/Geodesy.h>

#include "host/geo/Sphere.h"

namespace Tarvik::Data {

double ToNumber(const std::string& text) {
    double value = 0.0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (code != std::errc() || end != text.data() + text.size()) {
        throw std::runtime_error("\"" + text + "\" is no number");
    }
    return value;
}

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot open " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

GeoPoint ToPoint(const std::string& x, const std::string& y) {
    const GeoPoint p = Server::RoundPoint({ToNumber(x), ToNumber(y)});
    if (std::abs(p.x) > 360.0 || std::abs(p.y) > Util::kMostLatitude) {
        throw std::runtime_error(x + " " + y + " is no position");
    }
    return p;
}

GeoPoint ToPoint(const std::string& text) {
    const std::vector<std::string> parts = SplitText(text, ' ');
    if (parts.size() != 2) {
        throw std::runtime_error("\"" + text + "\" is no position");
    }
    return ToPoint(parts[0], parts[1]);
}

std::vector<GeoPoint> ToLine(const std::string& text) {
    std::vector<GeoPoint> line;
    for (const std::string& place : SplitText(text, ';')) {
        line.push_back(ToPoint(place));
    }
    return line;
}

std::vector<std::string> SplitText(const std::string& text, char separator) {
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    std::size_t start = 0;
    for (std::size_t at = text.find(separator); at != std::string::npos; at = text.find(separator, start)) {
        pieces.push_back(text.substr(start, at - start));
        start = at + 1;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

std::vector<std::string> CsvTable::SplitLine(const std::string& line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"' && quoted && i + 1 < line.size() && line[i + 1] == '"') {
            fields.back() += '"';
            ++i;
        } else if (c == '"') {
            quoted = !quoted;
        } else if (c == ',' && !quoted) {
            fields.emplace_back();
        } else if (c != '\r') {
            fields.back() += c;
        }
    }
    return fields;
}

CsvTable::CsvTable(const std::string& text) {
    for (const std::string& line : SplitText(text, '\n')) {
        if (line.empty() || line == "\r") {
            continue;
        }
        std::vector<std::string> fields = SplitLine(line);
        if (columns_.empty()) {
            for (std::size_t i = 0; i < fields.size(); ++i) {
                columns_[fields[i]] = i;
            }
        } else {
            rows_.push_back(std::move(fields));
        }
    }
}

std::string CsvTable::At(std::size_t row, const std::string& column) const {
    const auto it = columns_.find(column);
    if (it == columns_.end() || it->second >= rows_[row].size()) {
        return {};
    }
    return rows_[row][it->second];
}

}  // namespace Tarvik::Data
