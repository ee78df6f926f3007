// SPDX-License-Identifier: MIT
#include "seaplan/views/preview/FileTexts.h"

#include <fstream>

#include <nlohmann/json.hpp>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

FileTexts::FileTexts(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    const auto root = nlohmann::json::parse(in, nullptr, false);
    if (root.is_object()) {
        for (const auto& [section, keys] : root.items()) {
            for (const auto& [key, text] : keys.items()) {
                texts_[{section, key}] = text.get<std::string>();
            }
        }
    }
    Set(this);
}

std::optional<std::u16string> FileTexts::Find(const std::u16string& section, const std::u16string& /*name*/,
                                              const std::u16string& key) const {
    const auto found =
        texts_.find({Util::StringUtl::TranslateString(section), Util::StringUtl::TranslateString(key)});
    if (found == texts_.end()) {
        return std::nullopt;
    }
    return Util::StringUtl::TranslateString(found->second);
}

}  // namespace Tarvik::Seaplan
