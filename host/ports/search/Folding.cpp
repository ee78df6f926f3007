// SPDX-License-Identifier: MIT
#include "host/ports/search/Folding.h"

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace Tarvik::Ports {

namespace {

/// Letters that do not fall apart into a letter and a mark.
const char32_t* Plain(char32_t c) {
    switch (c) {
        case U'ø':
            return U"o";
        case U'æ':
            return U"ae";
        case U'œ':
            return U"oe";
        case U'đ':
            return U"d";
        case U'ł':
            return U"l";
        case U'ı':
            return U"i";
        default:
            return nullptr;
    }
}

/// Apostrophes and marks stand within a word and do not part it.
bool IsWithinWord(char32_t c) {
    return c == U'\'' || c == U'’' || c == U'`' || c == U'ʻ' ||
           u_charType(static_cast<UChar32>(c)) == U_NON_SPACING_MARK;
}

Words Split(const icu::UnicodeString& text) {
    Words words(1);
    for (int i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        const auto c = static_cast<char32_t>(text.char32At(i));
        if (IsWithinWord(c)) {
            continue;
        }
        if (const char32_t* plain = Plain(c)) {
            words.back() += plain;
        } else if (u_isalnum(static_cast<UChar32>(c)) != 0) {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) {
        words.pop_back();
    }
    return words;
}

}  // namespace

struct Folding::Tools {
    const icu::Normalizer2* spelling = nullptr;
    std::unique_ptr<icu::Transliterator> simplified;
};

Folding::Folding() : tools_(std::make_unique<Tools>()) {
    UErrorCode error = U_ZERO_ERROR;
    tools_->spelling = icu::Normalizer2::getNFKDInstance(error);
    // Without that table traditional characters are found only as they stand.
    tools_->simplified.reset(icu::Transliterator::createInstance("Hant-Hans", UTRANS_FORWARD, error));
}

Folding::~Folding() = default;

Words Folding::Fold(std::string_view text) const {
    icu::UnicodeString folded =
        icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
    UErrorCode error = U_ZERO_ERROR;
    if (tools_->spelling != nullptr) {
        folded = tools_->spelling->normalize(folded, error);
    }
    folded.foldCase();
    Words words = Split(folded);
    if (words.size() > 2 && words[0] == U"port" && words[1] == U"of") {
        words.erase(words.begin(), words.begin() + 2);
    }
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::u32string& word = words[i];
        if (word == U"st" && i + 1 < words.size()) {
            word = U"saint";
        }
        if (!IsHan(word[0])) {
            continue;
        }
        if (tools_->simplified) {
            auto han = icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(word.data()),
                                                     static_cast<std::int32_t>(word.size()));
            tools_->simplified->transliterate(han);
            word = Joined(Split(han));
        }
    }
    return words;
}

bool IsHan(char32_t c) {
    constexpr char32_t kFirst = 0x2E80;
    return c >= kFirst;
}

std::u32string Joined(const Words& words) {
    std::u32string whole;
    for (const std::u32string& word : words) {
        whole += word;
    }
    return whole;
}

std::string CountryName(const std::string& code, const std::string& language) {
    icu::UnicodeString name;
    icu::Locale("", code.c_str()).getDisplayCountry(icu::Locale(language.c_str()), name);
    std::string text;
    name.toUTF8String(text);
    return text.empty() ? code : text;
}

}  // namespace Tarvik::Ports
