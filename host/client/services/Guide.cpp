// SPDX-License-Identifier: MIT
#include "host/client/services/Guide.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "host/client/services/LanguageFiles.h"

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

constexpr std::string_view kMarkStart = "<a id=\"";
constexpr std::string_view kMarkEnd = "\"></a>";
constexpr std::string_view kKeysStart = "<!-- keys: ";
constexpr std::string_view kKeysEnd = " -->";
const std::string kKeysOf = "keys-";

using Lines = std::vector<std::string>;

/// What stands between start and end of a line; nothing for another line.
std::optional<std::string> Between(const std::string& line, std::string_view start, std::string_view end) {
    if (line.size() < start.size() + end.size() || !line.starts_with(start) || !line.ends_with(end)) {
        return std::nullopt;
    }
    return line.substr(start.size(), line.size() - start.size() - end.size());
}

bool IsHeading(const std::string& line) {
    const std::size_t level = line.find_first_not_of('#');
    return level != std::string::npos && level > 0 && line[level] == ' ';
}

Lines LinesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    Lines lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// The names of the reference language's pages, in their order.
std::vector<std::string> PageNames(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code failed;
    for (const auto& entry : fs::directory_iterator(fs::path(folder) / kReferenceLanguage, failed)) {
        if (entry.path().extension() == ".md") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Adds the lists of keys of a page, each with its topic.
void CollectKeys(const Lines& lines, std::map<std::string, std::string>& keys) {
    std::string topic;
    bool inside = false;
    for (const std::string& line : lines) {
        if (const auto mark = Between(line, kMarkStart, kMarkEnd)) {
            topic = mark->starts_with(kKeysOf) ? mark->substr(kKeysOf.size()) : "";
            inside = false;
        } else if (IsHeading(line)) {
            topic = inside ? "" : topic;
            inside = !topic.empty();
        } else if (inside) {
            keys[topic] += line + "\n";
        }
    }
}

GuidePage MakePage(const std::string& name, const Lines& lines,
                   const std::map<std::string, std::string>& keys) {
    GuidePage page;
    page.name = name;
    std::size_t headings = 0;
    for (const std::string& line : lines) {
        if (const auto mark = Between(line, kMarkStart, kMarkEnd)) {
            page.headings[*mark] = headings;
            continue;
        }
        if (const auto topic = Between(line, kKeysStart, kKeysEnd)) {
            const auto known = keys.find(*topic);
            page.markdown += known == keys.end() ? "" : known->second;
            continue;
        }
        if (IsHeading(line)) {
            page.title = headings == 0 ? line.substr(line.find(' ') + 1) : page.title;
            ++headings;
        }
        page.markdown += line + "\n";
    }
    return page;
}

}  // namespace

Guide Guide::Read(const std::string& folder, const std::string& language) {
    const std::vector<std::string> names = PageNames(folder);
    std::vector<Lines> texts;
    texts.reserve(names.size());
    std::map<std::string, std::string> keys;
    for (const std::string& name : names) {
        Lines lines = LinesOf(fs::path(folder) / language / (name + ".md"));
        if (lines.empty()) {
            lines = LinesOf(fs::path(folder) / kReferenceLanguage / (name + ".md"));
        }
        CollectKeys(lines, keys);
        texts.push_back(std::move(lines));
    }
    Guide guide;
    guide.pages_.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        guide.pages_.push_back(MakePage(names[i], texts[i], keys));
    }
    return guide;
}

std::optional<Guide::Place> Guide::Find(const std::string& mark) const {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (const auto found = pages_[i].headings.find(mark); found != pages_[i].headings.end()) {
            return Place{i, found->second};
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> Guide::PageNamed(const std::string& name) const {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (pages_[i].name == name) {
            return i;
        }
    }
    return std::nullopt;
}

}  // namespace Tarvik::Client
