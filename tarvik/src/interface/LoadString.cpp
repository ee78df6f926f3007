// SPDX-License-Identifier: MIT
#include <algorithm>

#include <tarvik/interface/LoadString.h>

namespace Tarvik::Interface {

namespace {

const LanguageSource* currentSource = nullptr;

bool IsHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

}  // namespace

LanguageSource::~LanguageSource() = default;

void LanguageSource::Set(const LanguageSource* source) {
    currentSource = source;
}

const LanguageSource* LanguageSource::Current() {
    return currentSource;
}

// The contract with hosts gives it six.  NOLINTNEXTLINE(readability-function-size)
void TrvLoadString(const char16_t* section, const char16_t* name, const char16_t* key, char16_t* buffer,
                   const char16_t* fallback, std::size_t capacity) {
    if (buffer == nullptr || capacity == 0) {
        return;
    }
    std::optional<std::u16string> text;
    if (currentSource != nullptr && section != nullptr && name != nullptr && key != nullptr) {
        text = currentSource->Find(section, name, key);
    }
    if (!text) {
        text = fallback != nullptr ? fallback : u"";
    }
    std::size_t units = std::min(text->size(), capacity - 1);
    // Half a surrogate pair is no text.
    if (units < text->size() && units > 0 && IsHighSurrogate((*text)[units - 1])) {
        --units;
    }
    std::copy_n(text->data(), units, buffer);
    buffer[units] = 0;
}

}  // namespace Tarvik::Interface
