// SPDX-License-Identifier: MIT
#include "host/client/services/LanguageFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include <nlohmann/json.hpp>

#include <tarvik/util/StringUtl.h>

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

constexpr const char* kNameKey = "LANGUAGE_NAME";
constexpr const char* kButtons = "Buttons";

/// All files of a folder in order of their names.
std::vector<fs::path> FilesOf(const std::string& folder) {
    std::vector<fs::path> files;
    std::error_code failed;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        files.push_back(it->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// The files "<component>.<language>.json" of a folder, in order of their names.
std::vector<fs::path> FilesOf(const std::string& folder, const std::string& language) {
    std::vector<fs::path> files = FilesOf(folder);
    const std::string tail = "." + language + ".json";
    std::erase_if(files, [&tail](const fs::path& file) {
        const std::string name = file.filename().string();
        return name.size() <= tail.size() || !name.ends_with(tail);
    });
    return files;
}

std::string ContentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace

bool IsOffered(const std::vector<Language>& languages, const std::string& code) {
    return std::any_of(languages.begin(), languages.end(),
                       [&code](const Language& language) { return language.code == code; });
}

std::vector<std::string> LanguageCodes(const std::vector<Language>& languages) {
    std::vector<std::string> codes;
    codes.reserve(languages.size());
    for (const Language& language : languages) {
        codes.push_back(language.code);
    }
    return codes;
}

std::vector<Language> LanguageFiles::In(const std::string& folder) {
    constexpr std::string_view kHead = "client.";
    constexpr std::string_view kTail = ".json";
    std::vector<Language> languages;
    for (const fs::path& file : FilesOf(folder)) {
        const std::string name = file.filename().string();
        if (!name.starts_with(kHead) || !name.ends_with(kTail) ||
            name.size() <= kHead.size() + kTail.size()) {
            continue;
        }
        LanguageFiles texts;
        texts.Merge(ContentOf(file));
        const std::string code = name.substr(kHead.size(), name.size() - kHead.size() - kTail.size());
        const std::string own = texts.Text("Client", kNameKey);
        languages.push_back({code, own == kNameKey ? code : own});
    }
    return languages;
}

void LanguageFiles::Load(const std::string& folder, const std::string& language) {
    texts_.clear();
    complaints_.clear();
    code_ = language;
    offered_ = In(folder);
    if (language != kReferenceLanguage) {
        MergeFiles(FilesOf(folder, kReferenceLanguage));
    }
    const std::vector<fs::path> files = FilesOf(folder, language);
    if (files.empty()) {
        complaints_.push_back("No language file for " + language + " in " + folder);
    }
    MergeFiles(files);
}

void LanguageFiles::MergeFiles(const std::vector<fs::path>& files) {
    for (const fs::path& file : files) {
        if (!Merge(ContentOf(file))) {
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

const Language* LanguageFiles::Next() const {
    if (offered_.empty()) {
        return nullptr;
    }
    const auto at = std::find_if(offered_.begin(), offered_.end(),
                                 [this](const Language& language) { return language.code == code_; });
    return at == offered_.end() || at + 1 == offered_.end() ? &offered_.front() : &*(at + 1);
}

std::string LanguageFiles::Text(const std::string& section, const std::string& key) const {
    const auto found = texts_.find({section, key});
    return found == texts_.end() ? key : found->second;
}

QuestionButtons LanguageFiles::ButtonsOf(const std::string& question) const {
    constexpr std::string_view kYes = ".YES";
    const std::size_t end = question.find('\n');
    const std::string detail = end == std::string::npos ? std::string() : question.substr(end + 1);
    QuestionButtons buttons;
    bool ofDetail = false;
    for (const auto& [where, yes] : texts_) {
        if (where.first != kButtons || !where.second.ends_with(kYes)) {
            continue;
        }
        const std::string key = where.second.substr(0, where.second.size() - kYes.size());
        const std::size_t dot = key.find('.');
        const bool special = dot != std::string::npos;
        if (!IsAsked(key.substr(0, dot), question.substr(0, end)) ||
            (special ? !IsTold(key.substr(dot + 1), detail) : ofDetail)) {
            continue;
        }
        ofDetail = special;
        const auto part = [&](const char* ending) {
            const auto found = texts_.find({kButtons, key + ending});
            return found == texts_.end() ? std::string() : found->second;
        };
        buttons = {yes, part(".NO"), part(".CAREFUL") == "yes"};
    }
    return buttons;
}

/// Whether the first line of a key's text is this one; the lines below tell what a question is about.
bool LanguageFiles::IsAsked(const std::string& key, const std::string& line) const {
    return std::any_of(texts_.begin(), texts_.end(), [&](const auto& entry) {
        return entry.first.first != kButtons && entry.first.second == key &&
               entry.second.substr(0, entry.second.find('\n')) == line;
    });
}

/// Whether a line begins as a key's text does before its first value.
bool LanguageFiles::IsTold(const std::string& key, const std::string& line) const {
    return std::any_of(texts_.begin(), texts_.end(), [&](const auto& entry) {
        const std::string begin = entry.second.substr(0, entry.second.find('%'));
        return entry.first.first != kButtons && entry.first.second == key && !begin.empty() &&
               line.starts_with(begin);
    });
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
