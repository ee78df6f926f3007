// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <utility>

#include <tarvik/interface/LoadString.h>

namespace Tarvik::Seaplan {

/// Texts of one language file, in force while it lives.
class FileTexts final : public Interface::LanguageSource {
  public:
    /// `path` names a file of the form {"Section":{"KEY":"text"}}; one that cannot be read has no texts.
    explicit FileTexts(const std::string& path);
    ~FileTexts() override { Set(nullptr); }
    FileTexts(const FileTexts&) = delete;
    FileTexts& operator=(const FileTexts&) = delete;

    bool Empty() const { return texts_.empty(); }
    /// Texts by section and key.
    const std::map<std::pair<std::string, std::string>, std::string>& All() const { return texts_; }
    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& name,
                                       const std::u16string& key) const override;

  private:
    std::map<std::pair<std::string, std::string>, std::string> texts_;
};

}  // namespace Tarvik::Seaplan
