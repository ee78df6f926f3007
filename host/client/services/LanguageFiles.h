// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/interface/LoadString.h>

namespace Tarvik::Client {

/// The language that has every text: what another one lacks is shown in it.
inline constexpr const char* kReferenceLanguage = "en-US";

/// A language that the client offers.
struct Language {
    std::string code;  ///< its name in file names, as "en-US"
    std::string name;  ///< what it calls itself
};

/// Whether `code` is one of the languages.
bool IsOffered(const std::vector<Language>& languages, const std::string& code);

/// The codes of the languages.
std::vector<std::string> LanguageCodes(const std::vector<Language>& languages);

/// What stands on the buttons of a question; empty where no file tells it.
struct QuestionButtons {
    std::string yes;
    std::string no;
    bool yesIsCareful = false;  ///< yes is the answer that loses nothing
};

/// Texts of one language, merged from files of the form {"Section":{"KEY":"text"}}.
class LanguageFiles : public Interface::LanguageSource {
  public:
    /// The languages of a folder, in order of their codes: each has a file "client.<code>.json" there, whose
    /// text LANGUAGE_NAME is the language's own name.
    static std::vector<Language> In(const std::string& folder);

    /// Replaces all texts by those of the files "<component>.<language>.json" of a folder; what they lack is
    /// in the reference language. A file that does not parse is left out and named among the complaints.
    void Load(const std::string& folder, const std::string& language);
    /// Adds the texts of one file's content. False for one that is no object of objects of texts.
    bool Merge(const std::string& json);

    const std::string& Code() const { return code_; }
    /// The languages of the folder loaded last.
    const std::vector<Language>& Offered() const { return offered_; }
    /// The language offered behind the one in force, behind the last the first; null when none is offered.
    const Language* Next() const;
    const std::vector<std::string>& Complaints() const { return complaints_; }
    /// Text of a key; the key itself when there is none, so that a gap is seen.
    std::string Text(const std::string& section, const std::string& key) const;

    /// The buttons of a question by its text. The section "Buttons" of a file names them by the question's
    /// key: "<key>.YES", "<key>.NO", and "<key>.CAREFUL" with the text "yes" where yes is the careful answer.
    /// "<key>.<key of a line>.YES" and so on go before these where that line stands below the question.
    QuestionButtons ButtonsOf(const std::string& question) const;

    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& name,
                                       const std::u16string& key) const override;

  private:
    void MergeFiles(const std::vector<std::filesystem::path>& files);
    bool IsAsked(const std::string& key, const std::string& line) const;
    bool IsTold(const std::string& key, const std::string& line) const;

    std::map<std::pair<std::string, std::string>, std::string> texts_;
    std::string code_;
    std::vector<Language> offered_;
    std::vector<std::string> complaints_;
};

}  // namespace Tarvik::Client
