// SPDX-License-Identifier: MIT
#include <tarvik/interface/ValueDictionary.h>

namespace Tarvik::Interface {

namespace {

const ValueDictionary* currentDictionary = nullptr;
}

ValueDictionary::~ValueDictionary() = default;

void ValueDictionary::Set(const ValueDictionary* dictionary) {
    currentDictionary = dictionary;
}

const ValueDictionary* ValueDictionary::Current() {
    return currentDictionary;
}

std::string GetNameByValue(const std::string& path, const std::string& value, int language) {
    return currentDictionary != nullptr ? currentDictionary->KeyOfValue(path, value, language)
                                        : std::string();
}

std::string GetValueByName(const std::string& path, const std::string& name, int language) {
    return currentDictionary != nullptr ? currentDictionary->ValueOfKey(path, name, language) : std::string();
}

}  // namespace Tarvik::Interface
