// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/Export.h>

namespace Tarvik::Core {

/// A version text that holds a negative number.
class TARVIK_API InvalidVersionFormatException : public std::exception {
  public:
    explicit InvalidVersionFormatException(std::string message) : message_(std::move(message)) {}
    const char* what() const noexcept override { return message_.c_str(); }

  private:
    std::string message_;
};

/// Four-part version. A part that the text lacks keeps its start value: 0 for major and minor, -1 for the
/// others.
struct TARVIK_API Version {
    int major = 0;
    int minor = 0;
    int build = -1;
    int revision = -1;

    /// Reads "1.2.3.4"; parts behind the fourth are ignored.
    /// Throws InvalidVersionFormatException "Version number cannot be negative." for a negative part.
    static Version Parse(const std::string& text);
    /// Order by the four parts; an absent part counts as 0.
    bool AtLeast(const Version& required) const;
    bool operator==(const Version&) const = default;
};

/// Describes one piece of software. The wide fields are owned copies: an empty or null input leaves null. The
/// fields lie in the order in which hosts have always known them.
class TARVIK_API CTrvSoftInfo {
  public:
    CTrvSoftInfo() = default;
    CTrvSoftInfo(const CTrvSoftInfo&) = delete;
    CTrvSoftInfo& operator=(const CTrvSoftInfo&) = delete;
    virtual ~CTrvSoftInfo();

    void SetDisplayName(const char16_t* text) { Assign(displayName_, text); }
    void SetDescription(const char16_t* text) { Assign(description_, text); }
    void SetCompany(const char16_t* text) { Assign(company_, text); }
    void SetEMail(const char16_t* text) { Assign(eMail_, text); }
    void SetCopyright(const char16_t* text) { Assign(copyright_, text); }
    void SetWebsite(const char16_t* text) { Assign(website_, text); }

    const char16_t* DisplayName() const { return displayName_; }
    const char16_t* Description() const { return description_; }
    const char16_t* Company() const { return company_; }
    const char16_t* EMail() const { return eMail_; }
    const char16_t* Copyright() const { return copyright_; }
    const char16_t* Website() const { return website_; }

    std::string name;

  private:
    char16_t* displayName_ = nullptr;

  public:
    std::string version;

  private:
    static void Assign(char16_t*& field, const char16_t* text);

    char16_t* description_ = nullptr;
    char16_t* company_ = nullptr;
    char16_t* eMail_ = nullptr;
    char16_t* copyright_ = nullptr;
    char16_t* website_ = nullptr;
};

}  // namespace Tarvik::Core

namespace Tarvik::Plugin {

/// What one plug-in needs of another: its name and the least version.
struct PluginDependency {
    std::string name;
    Core::Version version;
};

/// The parsed dependency text, "TRV,1.1.4|PlgSeamap,1.1". A piece that is not a name and a valid version is
/// skipped.
class TARVIK_API DependencyList {
  public:
    explicit DependencyList(std::string text = {});
    const std::string& Text() const { return text_; }
    std::uint8_t Flag() const { return flag_; }
    const std::vector<PluginDependency>& Entries() const { return entries_; }

  private:
    std::string text_;
    std::uint8_t flag_ = 1;
    std::vector<PluginDependency> entries_;
};

/// The record by which a host knows a plug-in: the result of its export `PluginInfo`.
class TARVIK_API CPluginInfo : public Core::CTrvSoftInfo {
  public:
    explicit CPluginInfo(std::string text = {}) : dependencyText(text), dependencies(std::move(text)) {}

    std::string dependencyText;
    std::uint8_t flag = 0;
    DependencyList dependencies;
};

}  // namespace Tarvik::Plugin
