// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Interface {

/// English, as the dictionary numbers languages.
inline constexpr int kEnglishLanguage = 1033;

/// Source of the host's value dictionary; the client offers the ports of trvdb.db under "/points".
class TARVIK_API ValueDictionary {
  public:
    virtual ~ValueDictionary();
    virtual std::string KeyOfValue(const std::string& path, const std::string& value, int language) const = 0;
    virtual std::string ValueOfKey(const std::string& path, const std::string& key, int language) const = 0;
    static void Set(const ValueDictionary* dictionary);
    static const ValueDictionary* Current();
};

/// Key of a value: with path "/points" the id of a port from its name. Empty when unknown.
TARVIK_API std::string GetNameByValue(const std::string& path, const std::string& value, int language);
/// Value of a key: with path "/points" the name of a port from its id. Empty when unknown.
TARVIK_API std::string GetValueByName(const std::string& path, const std::string& name, int language);

}  // namespace Tarvik::Interface
