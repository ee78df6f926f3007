// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::TestSupport {

/// The texts of one of a plug-in's language files, in force while it lives.
class PluginTexts final : public Interface::LanguageSource {
  public:
    /// `file` is the language file.
    explicit PluginTexts(const std::string& file) : texts_(nlohmann::json::parse(std::ifstream(file))) {
        Set(this);
    }
    ~PluginTexts() override { Set(nullptr); }
    PluginTexts(const PluginTexts&) = delete;
    PluginTexts& operator=(const PluginTexts&) = delete;

    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& /*name*/,
                                       const std::u16string& key) const override {
        const auto& mine = texts_.value(Util::StringUtl::TranslateString(section), nlohmann::json::object());
        const auto found = mine.find(Util::StringUtl::TranslateString(key));
        return found == mine.end()
                   ? std::nullopt
                   : std::optional(Util::StringUtl::TranslateString(found->get<std::string>()));
    }

  private:
    nlohmann::json texts_;
};

}  // namespace Tarvik::TestSupport
