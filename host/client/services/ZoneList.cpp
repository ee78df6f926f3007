// SPDX-License-Identifier: MIT
// Names, cities, countries and offsets of the zone data base, from ICU.
#include "host/client/services/ZoneList.h"

#include <cstdlib>
#include <iterator>
#include <memory>
#include <optional>
#include <regex>
#include <sstream>

#include <unicode/locid.h>
#include <unicode/strenum.h>
#include <unicode/timezone.h>
#include <unicode/tznames.h>

#include <tarvik/util/DateTimeUtl.h>

namespace Tarvik::Client {

namespace {

std::string Utf8(const icu::UnicodeString& text) {
    std::string utf8;
    return text.toUTF8String(utf8);
}

std::string Folded(const std::string& text) {
    return Utf8(icu::UnicodeString::fromUTF8(text).foldCase());
}

/// Tells where zones are, in one language.
class Places {
  public:
    explicit Places(const std::string& language) {
        UErrorCode status = U_ZERO_ERROR;
        locale_ = icu::Locale::forLanguageTag(language, status);
        names_.reset(icu::TimeZoneNames::createInstance(locale_, status));
    }
    /// "Rome, Italy"; empty for a zone without a country.
    std::string Of(const icu::UnicodeString& id) const {
        UErrorCode status = U_ZERO_ERROR;
        char region[8] = "";
        icu::TimeZone::getRegion(id, region, sizeof region, status);
        const bool isNowhere = std::string(region) == "001";
        if (U_FAILURE(status) || isNowhere || !names_) {
            return {};
        }
        icu::UnicodeString city;
        names_->getExemplarLocationName(id, city);
        icu::UnicodeString country;
        icu::Locale("", region).getDisplayCountry(locale_, country);
        return Utf8(city) + (city.isEmpty() ? "" : ", ") + Utf8(country);
    }

  private:
    icu::Locale locale_;
    std::unique_ptr<icu::TimeZoneNames> names_;
};

std::string OffsetText(int minutes) {
    const int size = std::abs(minutes);
    std::string text = minutes < 0 ? "UTC-" : "UTC+";
    for (const int part : {size / 60, size % 60}) {
        text += (part < 10 ? "0" : "") + std::to_string(part) + ":";
    }
    text.pop_back();
    return text;
}

/// The minutes of a word that is an offset: "+8", "-3:30", "utc+08:00".
std::optional<int> OffsetOf(const std::string& word) {
    static const std::regex kOffset("(?:utc|gmt)?([+-])([0-9]{1,2})(?::?([0-9]{2}))?");
    std::smatch parts;
    if (!std::regex_match(word, parts, kOffset)) {
        return std::nullopt;
    }
    const int minutes = std::stoi(parts[2]) * 60 + (parts[3].matched ? std::stoi(parts[3]) : 0);
    return parts[1] == "-" ? -minutes : minutes;
}

/// Makes the lines of one list.
class Lister {
  public:
    Lister(const std::string& language, std::int64_t moment)
        : here_(language), english_("en"), moment_(static_cast<double>(moment) * 1000) {}

    ZoneLine Line(const std::string& name, const icu::UnicodeString& id) const {
        ZoneLine line{name, here_.Of(id), 0, {}};
        std::int32_t raw = 0;
        std::int32_t summer = 0;
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(id));
        zone->getOffset(moment_, false, raw, summer, status);
        line.offsetMinutes = (raw + summer) / 60000;
        line.words = Folded(name + " " + line.place + " " + english_.Of(id));
        // "New_York" is typed as two words.
        for (char& sign : line.words) {
            sign = sign == '_' ? ' ' : sign;
        }
        return line;
    }

  private:
    Places here_;
    Places english_;
    double moment_;
};

}  // namespace

std::string ZoneLine::Text() const {
    return name + (place.empty() ? "" : " · " + place) + " · " + OffsetText(offsetMinutes);
}

bool ZoneLine::Answers(const std::string& typed) const {
    std::istringstream sought(Folded(typed));
    for (std::istream_iterator<std::string> word(sought), end; word != end; ++word) {
        const std::optional<int> offset = OffsetOf(*word);
        if (offset ? *offset != offsetMinutes : words.find(*word) == std::string::npos) {
            return false;
        }
    }
    return true;
}

std::vector<ZoneLine> ListZones(const std::string& language, std::int64_t moment) {
    UErrorCode status = U_ZERO_ERROR;
    const Lister lister(language, moment);
    icu::UnicodeString plan;
    icu::TimeZone::getIDForWindowsID(icu::UnicodeString::fromUTF8(Util::kPlanZone), nullptr, plan, status);
    std::vector<ZoneLine> lines;
    lines.push_back(lister.Line(Util::kPlanZone, plan));
    lines.push_back(lister.Line("UTC", UNICODE_STRING_SIMPLE("Etc/UTC")));
    const std::unique_ptr<icu::StringEnumeration> ids(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_ANY, nullptr, nullptr, status));
    if (U_FAILURE(status)) {
        return lines;
    }
    lines.reserve(static_cast<std::size_t>(ids->count(status)) + lines.size());
    while (const icu::UnicodeString* id = ids->snext(status)) {
        const std::string name = Utf8(*id);
        const bool isPlace = name.find('/') != std::string::npos;
        if (isPlace && !name.starts_with("Etc/") && !name.starts_with("SystemV/")) {
            lines.push_back(lister.Line(name, *id));
        }
    }
    return lines;
}

}  // namespace Tarvik::Client
