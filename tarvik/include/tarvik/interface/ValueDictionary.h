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
    /// What GetNameByValue answers.
    virtual std::string KeyOfValue(const std::string& path, const std::string& value, int language) const = 0;
    /// What GetValueByName answers.
    virtual std::string ValueOfKey(const std::string& path, const std::string& key, int language) const = 0;
    /// Client: puts a dictionary in force (not owned); null takes it away.
    static void Set(const ValueDictionary* dictionary);
    /// The dictionary in force; null without one.
    static const ValueDictionary* Current();
};

/// Key of a value: with path "/points" the id of a port from its name. Empty when unknown.
TARVIK_API std::string GetNameByValue(const std::string& path, const std::string& value, int language);
/// Value of a key: with path "/points" the name of a port from its id. Empty when unknown.
TARVIK_API std::string GetValueByName(const std::string& path, const std::string& name, int language);

}  // namespace Tarvik::Interface
