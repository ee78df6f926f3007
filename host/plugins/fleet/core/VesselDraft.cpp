// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/core/VesselDraft.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include <tarvik/interface/VesselNumbers.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Fleet {

namespace {

constexpr std::size_t kMostName = 64;
constexpr std::size_t kMostCallSign = 12;
constexpr double kLongest = 500;  ///< metres
constexpr double kFastest = 60;   ///< knots

std::size_t Characters(const std::string& text) {
    return Util::StringUtl::TranslateString(text).size();
}

/// A number of so many digits; nothing for another text.
std::optional<std::int32_t> Digits(const std::string& typed, std::size_t digits) {
    const std::string text = Util::StringUtl::Trim(typed);
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const bool whole = text.size() == digits && error == std::errc() && stop == end && number >= 0;
    return whole ? std::optional(number) : std::nullopt;
}

std::string ImoDigits(const std::string& typed) {
    std::string text = Util::StringUtl::Trim(typed);
    constexpr std::string_view kMark = "IMO";
    if (text.size() > kMark.size() && (text.starts_with("IMO") || text.starts_with("imo"))) {
        text = Util::StringUtl::Trim(text.substr(kMark.size()));
    }
    return text;
}

/// 0 for an empty text, nothing for one that is no number from 0 to `most`. A comma counts as a point.
std::optional<double> Decimal(const std::string& typed, double most) {
    std::string text = Util::StringUtl::Trim(typed);
    std::replace(text.begin(), text.end(), ',', '.');
    if (text.empty()) {
        return 0;
    }
    double number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    const bool whole = error == std::errc() && stop == end && number >= 0 && number <= most;
    return whole ? std::optional(number) : std::nullopt;
}

std::string WithoutQuotes(const std::string& typed) {
    constexpr std::pair<char, const char*> kFullwidth[] = {
        {'\'', "＇"}, {'"', "＂"}, {'\\', "＼"}, {'&', "＆"}};
    std::string out;
    for (const char c : Util::StringUtl::Trim(typed)) {
        const auto* wide = std::find_if(std::begin(kFullwidth), std::end(kFullwidth),
                                        [c](const auto& pair) { return pair.first == c; });
        wide == std::end(kFullwidth) ? out += c : out += wide->second;
    }
    return out;
}

std::optional<Fault> NumberFault(const VesselDraft& draft) {
    if (!Util::StringUtl::Trim(draft.mmsi).empty()) {
        const auto mmsi = Digits(draft.mmsi, 9);
        if (!mmsi || !Interface::IsShipMmsi(*mmsi)) {
            return mmsi ? Fault::MmsiCountry : Fault::MmsiDigits;
        }
    }
    const std::string imoText = ImoDigits(draft.imo);
    if (!imoText.empty()) {
        const auto imo = Digits(imoText, 7);
        if (!imo || !Interface::IsImoNumber(*imo)) {
            return imo ? Fault::ImoCheck : Fault::ImoDigits;
        }
    }
    return std::nullopt;
}

std::string Printed(double number) {
    return number > 0 ? fmt::format("{:.6g}", number) : std::string();
}

}  // namespace

VesselDraft VesselDraft::Of(const Interface::FleetVessel& vessel) {
    return {vessel.name,
            vessel.mmsi > 0 ? fmt::format("{:09}", vessel.mmsi) : std::string(),
            vessel.imo > 0 ? std::to_string(vessel.imo) : std::string(),
            vessel.callSign,
            vessel.type,
            Printed(vessel.length),
            Printed(vessel.serviceSpeed)};
}

std::optional<Fault> VesselDraft::Check() const {
    const std::string named = Util::StringUtl::Trim(name);
    if (named.empty() || Characters(named) > kMostName) {
        return named.empty() ? Fault::NameMissing : Fault::NameLong;
    }
    if (const auto fault = NumberFault(*this)) {
        return fault;
    }
    if (Characters(Util::StringUtl::Trim(callSign)) > kMostCallSign) {
        return Fault::CallSignLong;
    }
    if (Characters(Util::StringUtl::Trim(type)) > kMostName) {
        return Fault::TypeLong;
    }
    if (!Decimal(length, kLongest)) {
        return Fault::Length;
    }
    return Decimal(speed, kFastest) ? std::nullopt : std::optional(Fault::Speed);
}

Interface::FleetVessel VesselDraft::Vessel() const {
    Interface::FleetVessel vessel;
    vessel.name = WithoutQuotes(name);
    vessel.mmsi = Digits(mmsi, 9).value_or(0);
    vessel.imo = Digits(ImoDigits(imo), 7).value_or(0);
    vessel.callSign = WithoutQuotes(callSign);
    vessel.type = WithoutQuotes(type);
    vessel.length = std::round(Decimal(length, kLongest).value_or(0) * 10) / 10;
    vessel.serviceSpeed = KeptSpeed(Decimal(speed, kFastest).value_or(0));
    return vessel;
}

double KeptSpeed(double knots) {
    return std::round(knots * 100) / 100;
}

const char* KeyOf(Fault fault) {
    switch (fault) {
        case Fault::NameMissing:
            return "FAULT_NAME_MISSING";
        case Fault::NameLong:
            return "FAULT_NAME_LONG";
        case Fault::MmsiDigits:
            return "FAULT_MMSI_DIGITS";
        case Fault::MmsiCountry:
            return "FAULT_MMSI_COUNTRY";
        case Fault::ImoDigits:
            return "FAULT_IMO_DIGITS";
        case Fault::ImoCheck:
            return "FAULT_IMO_CHECK";
        case Fault::CallSignLong:
            return "FAULT_CALLSIGN";
        case Fault::TypeLong:
            return "FAULT_TYPE";
        case Fault::Length:
            return "FAULT_LENGTH";
        case Fault::Speed:
            return "FAULT_SPEED";
    }
    return "FAULT_NAME_MISSING";
}

}  // namespace Tarvik::Fleet
