// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>

#include <tarvik/interface/LoadString.h>

namespace Tarvik::Seaplan {

/// A language in which every key reads as itself, except those that it lacks. In force while it lives.
class KeyTexts final : public Interface::LanguageSource {
  public:
    KeyTexts() { Set(this); }
    ~KeyTexts() override { Set(nullptr); }
    KeyTexts(const KeyTexts&) = delete;
    KeyTexts& operator=(const KeyTexts&) = delete;

    std::set<std::u16string> missing;
    std::u16string prefix;
    std::map<std::u16string, std::u16string> given;  ///< keys that have texts of their own

    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string&,
                                       const std::u16string& key) const override {
        if (section != u"Seaplan" || missing.contains(key)) {
            return std::nullopt;
        }
        const auto own = given.find(key);
        return own == given.end() ? prefix + key : own->second;
    }
};

}  // namespace Tarvik::Seaplan
