// SPDX-License-Identifier: MIT
#include "host/client/services/LanguageFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <nlohmann/json.hpp>

#include <tarvik/util/StringUtl.h>

namespace fs = std::filesystem;

namespace Tarvik::Client {

const std::vector<std::string>& LanguageFiles::Offered() {
    static const std::vector<std::string> languages{"en-US", "zh-CN"};
    return languages;
}

void LanguageFiles::Load(const std::string& folder, const std::string& language) {
    texts_.clear();
    complaints_.clear();
    language_ = language;
    std::vector<fs::path> files;
    std::error_code failed;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        const std::string name = it->path().filename().string();
        const std::string tail = "." + language + ".json";
        if (name.size() > tail.size() && name.ends_with(tail)) {
            files.push_back(it->path());
        }
    }
    std::sort(files.begin(), files.end());
    if (files.empty()) {
        complaints_.push_back("No language file for " + language + " in " + folder);
    }
    for (const fs::path& file : files) {
        std::ifstream in(file, std::ios::binary);
        const std::string json((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (!Merge(json)) {
            complaints_.push_back("The language file " + file.string() + " cannot be read");
        }
    }
}

bool LanguageFiles::Merge(const std::string& json) {
    const auto root = nlohmann::json::parse(json, nullptr, false);
    if (!root.is_object()) {
        return false;
    }
    for (const auto& [section, keys] : root.items()) {
        if (!keys.is_object()) {
            return false;
        }
        for (const auto& [key, text] : keys.items()) {
            if (!text.is_string()) {
                return false;
            }
            texts_[{section, key}] = text.get<std::string>();
        }
    }
    return true;
}

std::string LanguageFiles::Text(const std::string& section, const std::string& key) const {
    const auto found = texts_.find({section, key});
    return found == texts_.end() ? key : found->second;
}

std::optional<std::u16string> LanguageFiles::Find(const std::u16string& section,
                                                  const std::u16string& /*name*/,
                                                  const std::u16string& key) const {
    const auto found =
        texts_.find({Util::StringUtl::TranslateString(section), Util::StringUtl::TranslateString(key)});
    if (found == texts_.end()) {
        return std::nullopt;
    }
    return Util::StringUtl::TranslateString(found->second);
}

}  // namespace Tarvik::Client
