// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <string>
#include <tuple>

#include <tarvik/core/PluginInfo.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Core {

Version Version::Parse(const std::string& text) {
    std::vector<std::string> parts;
    Util::StringUtl::split(text, ".", parts);
    Version version;
    const std::array<int*, 4> fields{&version.major, &version.minor, &version.build, &version.revision};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const int number = Util::StringUtl::ToInt(parts[i]);
        if (number < 0) {
            throw InvalidVersionFormatException("Version number cannot be negative.");
        }
        if (i < fields.size()) {
            *fields[i] = number;
        }
    }
    return version;
}

bool Version::AtLeast(const Version& required) const {
    const auto parts = [](const Version& v) {
        return std::make_tuple(v.major, v.minor, std::max(v.build, 0), std::max(v.revision, 0));
    };
    return parts(*this) >= parts(required);
}

CTrvSoftInfo::~CTrvSoftInfo() {
    for (char16_t* field : {displayName_, description_, company_, eMail_, copyright_, website_}) {
        delete[] field;
    }
}

void CTrvSoftInfo::Assign(char16_t*& field, const char16_t* text) {
    char16_t* copy = nullptr;
    if (text != nullptr && *text != 0) {
        const std::size_t units = std::char_traits<char16_t>::length(text) + 1;
        copy = new char16_t[units];
        std::copy_n(text, units, copy);
    }
    delete[] field;
    field = copy;
}

}  // namespace Tarvik::Core

namespace Tarvik::Plugin {

namespace {

bool IsValidVersion(const std::string& text) {
    try {
        Core::Version::Parse(text);
        return true;
    } catch (const Core::InvalidVersionFormatException&) {
        return false;
    }
}

}  // namespace

DependencyList::DependencyList(std::string text) : text_(std::move(text)) {
    std::vector<std::string> pieces;
    Util::StringUtl::split(text_, "|", pieces);
    for (const std::string& piece : pieces) {
        std::vector<std::string> parts;
        Util::StringUtl::split(piece, ",", parts);
        if (parts.size() != 2 || !IsValidVersion(parts[1])) {
            continue;
        }
        entries_.push_back({parts[0], Core::Version::Parse(parts[1])});
    }
}

}  // namespace Tarvik::Plugin
