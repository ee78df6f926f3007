// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/LoadText.h"

#include <array>

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/texts/AllTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char16_t* kMissing = u"_TRV_LOAD_STRING_ERRRES";
/// UTF-16 units of a text, its end included: of one that a panel asks for, and of a control's own.
constexpr std::size_t kTextCapacity = 4096;
constexpr std::size_t kControlCapacity = 2048;

struct TableEntry {
    int number;
    const char* key;
};

constexpr TableEntry kTable[] = {
#define SEAPLAN_TEXT_ENTRY(number, key) {number, #key},
    SEAPLAN_TEXT_KEYS(SEAPLAN_TEXT_ENTRY)
#undef SEAPLAN_TEXT_ENTRY
};

}  // namespace

const char* TextKeyOf(int number) {
    for (const TableEntry& entry : kTable) {
        if (entry.number == number) {
            return entry.key;
        }
    }
    return nullptr;
}

namespace {

/// The text of a key; false, with `out` as it was, when the language file lacks it.
template <std::size_t capacity>
bool Find(std::string& out, const char* key) {
    std::array<char16_t, capacity> buffer{};
    Interface::TrvLoadString(kTextSection, kTextSection,
                             Util::StringUtl::TranslateString(std::string(key)).c_str(), buffer.data(),
                             kMissing, buffer.size());
    const std::u16string text(buffer.data());
    if (text == kMissing) {
        return false;
    }
    out = Util::StringUtl::TranslateString(text);
    return true;
}

}  // namespace

bool LoadText(std::string& out, int number, const std::string& fallback) {
    out = fallback;
    const char* key = TextKeyOf(number);
    return key != nullptr && Find<kTextCapacity>(out, key);
}

std::string TextOfKey(const char* key) {
    std::string text;
    Find<kControlCapacity>(text, key);
    return text;
}

std::string Text(TextId id) {
    std::string text;
    LoadText(text, static_cast<int>(id), {});
    return text;
}

std::string Text(TextId id, const std::vector<std::string>& values) {
    const std::string pattern = Text(id);
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        // A value is never read as a pattern: names come from people.
        const std::size_t value = pattern[at] == '%' && at + 1 < pattern.size()
                                      ? static_cast<std::size_t>(pattern[at + 1]) - '1'
                                      : values.size();
        if (value < values.size()) {
            text += values[value];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

}  // namespace Tarvik::Seaplan
