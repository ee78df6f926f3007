// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/interface/LoadString.h>

namespace Tarvik::Client {

/// Texts of one language, merged from files of the form {"Section":{"KEY":"text"}}.
class LanguageFiles : public Interface::LanguageSource {
  public:
    /// Languages that the client offers, by their names in file names.
    static const std::vector<std::string>& Offered();

    /// Replaces all texts by those of the files "<component>.<language>.json" of a folder. A file that does
    /// not parse is left out and named among the complaints.
    void Load(const std::string& folder, const std::string& language);
    /// Adds the texts of one file's content. False for one that is no object of objects of texts.
    bool Merge(const std::string& json);

    const std::string& Language() const { return language_; }
    const std::vector<std::string>& Complaints() const { return complaints_; }
    /// Text of a key; the key itself when there is none, so that a gap is seen.
    std::string Text(const std::string& section, const std::string& key) const;

    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& name,
                                       const std::u16string& key) const override;

  private:
    std::map<std::pair<std::string, std::string>, std::string> texts_;
    std::string language_;
    std::vector<std::string> complaints_;
};

}  // namespace Tarvik::Client
