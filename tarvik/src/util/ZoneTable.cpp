// SPDX-License-Identifier: MIT
// A zone's offset at a moment, from ICU's zone data base; names of either kind are mapped by ICU too. Zones
// are opened once and kept, so that a conversion costs a look-up and a binary search among the zone's
// changes.
#include "ZoneTable.h"

#include <map>
#include <memory>
#include <mutex>

#include <unicode/basictz.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <tarvik/util/Log.h>

namespace Tarvik::Util {

namespace {

using ZonePtr = std::unique_ptr<icu::BasicTimeZone>;

/// Opens a zone by either kind of name; null when unknown.
ZonePtr OpenZone(const std::string& name) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString given = icu::UnicodeString::fromUTF8(name);
    icu::UnicodeString id;
    icu::TimeZone::getIDForWindowsID(given, nullptr, id, status);
    if (U_FAILURE(status) || id.isEmpty()) {
        status = U_ZERO_ERROR;
        icu::UnicodeString canonical;
        UBool isSystemId = false;
        icu::TimeZone::getCanonicalID(given, canonical, isSystemId, status);
        if (U_FAILURE(status) || !isSystemId || given == UNICODE_STRING_SIMPLE("Etc/Unknown")) {
            return nullptr;
        }
        id = given;
    }
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(id));
    auto* basic = dynamic_cast<icu::BasicTimeZone*>(zone.get());
    if (basic != nullptr) {
        static_cast<void>(zone.release());
    }
    return ZonePtr(basic);
}

struct Zones {
    std::mutex mutex;
    std::map<std::string, ZonePtr> byName;
};

// Unknown names are kept too, so that each is looked for and logged once. Zones are never removed, so a found
// one may be used outside the lock.
const icu::BasicTimeZone* Find(const std::string& name, bool logUnknown) {
    static auto* zones = new Zones;
    static auto* logged = new std::map<std::string, bool>;
    const icu::BasicTimeZone* zone = nullptr;
    bool logNow = false;
    {
        std::lock_guard lock(zones->mutex);
        auto found = zones->byName.find(name);
        if (found == zones->byName.end()) {
            found = zones->byName.emplace(name, OpenZone(name)).first;
        }
        zone = found->second.get();
        if (zone == nullptr && logUnknown) {
            logNow = logged->emplace(name, true).second;
        }
    }
    if (logNow) {
        Log(LogLevel::Warning, "unknown time zone \"" + name + "\", using UTC");
    }
    return zone;
}

/// The zone's offset with summer time, as `ask` has it of the zone; 0 for an unknown zone.
template <class Ask>
std::int64_t OffsetOf(const std::string& zone, Ask ask) {
    const icu::BasicTimeZone* found = Find(zone, true);
    if (found == nullptr) {
        return 0;
    }
    std::int32_t raw = 0;
    std::int32_t summer = 0;
    UErrorCode status = U_ZERO_ERROR;
    ask(*found, raw, summer, status);
    return U_SUCCESS(status) ? std::int64_t{raw} + summer : 0;
}

}  // namespace

bool ZoneTable::IsKnown(const std::string& zone) {
    return Find(zone, false) != nullptr;
}

std::int64_t ZoneTable::OffsetAtUtc(const std::string& zone, double utcMs) {
    return OffsetOf(zone,
                    [utcMs](const icu::BasicTimeZone& found, std::int32_t& raw, std::int32_t& summer,
                            UErrorCode& status) { found.getOffset(utcMs, false, raw, summer, status); });
}

std::int64_t ZoneTable::OffsetAtLocal(const std::string& zone, double localMs) {
    return OffsetOf(zone, [localMs](const icu::BasicTimeZone& found, std::int32_t& raw, std::int32_t& summer,
                                    UErrorCode& status) {
        found.getOffsetFromLocal(localMs, UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, raw, summer, status);
    });
}

}  // namespace Tarvik::Util
