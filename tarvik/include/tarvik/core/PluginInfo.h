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
    /// `message` is what what() tells.
    explicit InvalidVersionFormatException(std::string message) : message_(std::move(message)) {}
    /// The message, valid as long as the exception.
    const char* what() const noexcept override { return message_.c_str(); }

  private:
    std::string message_;
};

/// Four-part version, no part negative. A part that the text lacks keeps its start value.
struct TARVIK_API Version {
    int major = 0;      ///< first part
    int minor = 0;      ///< second part
    int build = -1;     ///< third part, -1 when absent
    int revision = -1;  ///< fourth part, -1 when absent

    /// Reads "1.2.3.4"; parts behind the fourth are ignored.
    /// Throws InvalidVersionFormatException "Version number cannot be negative." for a negative part.
    static Version Parse(const std::string& text);
    /// Order by the four parts; an absent part counts as 0.
    bool AtLeast(const Version& required) const;
    /// Whether all parts are the same; an absent part differs from 0.
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

    ///@{
    /// Keeps a copy of the text, UTF-16 and ended by NUL, in place of the one before.
    void SetDisplayName(const char16_t* text) { Assign(displayName_, text); }
    void SetDescription(const char16_t* text) { Assign(description_, text); }
    void SetCompany(const char16_t* text) { Assign(company_, text); }
    void SetEMail(const char16_t* text) { Assign(eMail_, text); }
    void SetCopyright(const char16_t* text) { Assign(copyright_, text); }
    void SetWebsite(const char16_t* text) { Assign(website_, text); }
    ///@}

    ///@{
    /// The text, null without one; the record's, valid until it is set anew.
    const char16_t* DisplayName() const { return displayName_; }
    const char16_t* Description() const { return description_; }
    const char16_t* Company() const { return company_; }
    const char16_t* EMail() const { return eMail_; }
    const char16_t* Copyright() const { return copyright_; }
    const char16_t* Website() const { return website_; }
    ///@}

    std::string name;  ///< by which other plug-ins name it in their needs, "PlgSeamap"

  private:
    char16_t* displayName_ = nullptr;

  public:
    std::string version;  ///< as Version reads it, "1.1.0.0"

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
    std::string name;       ///< of the plug-in, or kHostName
    Core::Version version;  ///< the least that will do
};

/// The parsed dependency text, "TRV,1.1.4|PlgSeamap,1.1". A piece that is not a name and a valid version is
/// skipped.
class TARVIK_API DependencyList {
  public:
    /// Reads the text; never fails.
    explicit DependencyList(std::string text = {});
    /// The text as it was given.
    const std::string& Text() const { return text_; }
    /// Always 1; kept for hosts that read it.
    std::uint8_t Flag() const { return flag_; }
    /// What was read, in the text's order.
    const std::vector<PluginDependency>& Entries() const { return entries_; }

  private:
    std::string text_;
    std::uint8_t flag_ = 1;
    std::vector<PluginDependency> entries_;
};

/// The record by which a host knows a plug-in: the result of its export `PluginInfo`.
class TARVIK_API CPluginInfo : public Core::CTrvSoftInfo {
  public:
    /// `text` says what the plug-in needs, "TRV,1.1.4|PlgSeamap,1.1".
    explicit CPluginInfo(std::string text = {}) : dependencyText(text), dependencies(std::move(text)) {}

    std::string dependencyText;   ///< as it was given
    std::uint8_t flag = 0;        ///< not read by this client
    DependencyList dependencies;  ///< the text, read
};

}  // namespace Tarvik::Plugin
