// SPDX-License-Identifier: MIT
/// One line a choice: table, key of the column, and its width or "hidden". The file is replaced in one step.
#include "seaplan/panels/window/KeptColumns.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

#include <tarvik/util/FileUtl.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/book/BookColumns.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kHidden = "hidden";
constexpr std::size_t kMostLines = 200;

struct Line {
    std::string table;
    std::string key;
    std::string choice;
};

std::filesystem::path File() {
    return Util::FileUtl::BusinessData("seaplan/columns.txt");
}

std::vector<Line> ReadLines() {
    std::vector<Line> lines;
    std::ifstream in(File(), std::ios::binary);
    for (std::string text; lines.size() < kMostLines && std::getline(in, text);) {
        std::istringstream words(text);
        Line line;
        if (words >> line.table >> line.key >> line.choice) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

void Put(std::ostream& out, const Line& line) {
    out << line.table << ' ' << line.key << ' ' << line.choice << '\n';
}

}  // namespace

KeptColumns::KeptColumns(std::string table, std::vector<KeptColumn> columns)
    : table_(std::move(table)), columns_(std::move(columns)) {
    for (const Line& line : ReadLines()) {
        const auto found = std::find_if(columns_.begin(), columns_.end(),
                                        [&line](const KeptColumn& column) { return column.key == line.key; });
        if (line.table != table_ || found == columns_.end()) {
            continue;
        }
        const auto column = static_cast<std::size_t>(found - columns_.begin());
        if (line.choice == kHidden) {
            SetHidden(column, true);
        } else if (const int width = Util::StringUtl::ToInt(line.choice); width > 0) {
            SetWidth(column, width);
        }
    }
}

void KeptColumns::SetWidth(std::size_t column, int width) {
    if (column < columns_.size()) {
        columns_[column].width = std::clamp(width, kNarrowest, kWidest);
    }
}

void KeptColumns::SetHidden(std::size_t column, bool hidden) {
    if (column < columns_.size() && columns_[column].canHide) {
        columns_[column].hidden = hidden;
    }
}

void KeptColumns::Reset() {
    for (KeptColumn& column : columns_) {
        column.width.reset();
        column.hidden = false;
    }
}

bool KeptColumns::Save() const {
    const std::vector<Line> before = ReadLines();
    const std::filesystem::path file = File();
    std::error_code failed;
    std::filesystem::create_directories(file.parent_path(), failed);
    std::filesystem::path fresh = file;
    fresh += ".new";
    {
        std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
        for (const Line& line : before) {
            if (line.table != table_) {
                Put(out, line);
            }
        }
        for (const KeptColumn& column : columns_) {
            if (column.width) {
                Put(out, {table_, column.key, std::to_string(*column.width)});
            }
            if (column.hidden) {
                Put(out, {table_, column.key, kHidden});
            }
        }
        out.flush();
        if (!out) {
            return false;
        }
    }
    std::filesystem::rename(fresh, file, failed);
    return !failed;
}

KeptColumns KeptPortCallColumns() {
    std::vector<KeptColumn> columns;
    columns.reserve(kPortCallColumns.size());
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        const bool tabbed = column.editor == CellEditor::Port || column.editor == CellEditor::Speed ||
                            column.editor == CellEditor::Weather;
        columns.push_back({column.title, !columns.empty() && !tabbed});
    }
    return {"portcalls", std::move(columns)};
}

KeptColumns KeptBookColumns() {
    std::vector<KeptColumn> columns;
    columns.reserve(kBookColumns.size());
    for (const BookColumnEntry& column : kBookColumns) {
        columns.push_back({column.title, columns.size() > BookName});
    }
    return {"book", std::move(columns)};
}

}  // namespace Tarvik::Seaplan
