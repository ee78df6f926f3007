// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Ais {

/// The plug-in's English texts, in force while it lives.
class EnglishTexts final : public Interface::LanguageSource {
  public:
    EnglishTexts() : texts_(nlohmann::json::parse(std::ifstream(AIS_LANGUAGES "/ais.en-US.json"))) {
        Set(this);
    }
    ~EnglishTexts() override { Set(nullptr); }
    EnglishTexts(const EnglishTexts&) = delete;
    EnglishTexts& operator=(const EnglishTexts&) = delete;

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

}  // namespace Tarvik::Ais
