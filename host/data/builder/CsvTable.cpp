// SPDX-License-Identifier: MIT
#include "host/data/builder/CsvTable.h"

namespace Tarvik::Data {

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
