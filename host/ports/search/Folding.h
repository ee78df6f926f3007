// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tarvik::Ports {

/// Words of a name as they are compared: small letters without marks, simplified characters.
using Words = std::vector<std::u32string>;

/// Brings names and what is typed to one spelling, so that case, accents, punctuation, full width and
/// traditional characters make no difference.
class Folding {
  public:
    Folding();
    ~Folding();
    Folding(const Folding&) = delete;
    Folding& operator=(const Folding&) = delete;

    /// The words of a UTF-8 text; broken bytes count as punctuation, which parts words, as blanks do. "St"
    /// before another word is "saint"; "port of" before another word is left out.
    Words Fold(std::string_view text) const;

  private:
    struct Tools;
    std::unique_ptr<Tools> tools_;
};

/// Whether it is one of the characters that Chinese names are written in.
bool IsHan(char32_t c);

/// The words without anything between them.
std::u32string Joined(const Words& words);

/// Name of the country with this code of two letters in a language, as "en" or "zh_TW"; the code itself when
/// it is not known.
std::string CountryName(const std::string& code, const std::string& language);

}  // namespace Tarvik::Ports
