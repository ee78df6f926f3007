// SPDX-License-Identifier: MIT
#include "host/client/plan/PlanArguments.h"

#include <charconv>
#include <cmath>
#include <map>
#include <span>
#include <string_view>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

#include "host/client/plan/PortLookup.h"

namespace Tarvik::Client {

namespace {

constexpr double kMaxSpeedKnots = 1000.0;
constexpr double kMaxStayHours = 10000.0;

std::string Quoted(const std::string& word) {
    return "\"" + word + "\"";
}

/// Reads options one by one into the arguments; each reader answers an error line, empty when all is well.
class Reader {
  public:
    explicit Reader(const std::vector<std::string>& words) : words_(words) {}

    ParsedPlan Run() {
        bool optionsEnded = false;
        for (at_ = 0; at_ < words_.size() && error_.empty(); ++at_) {
            const std::string& word = words_[at_];
            if (!optionsEnded && word == "--") {
                optionsEnded = true;
            } else if (!optionsEnded && word.starts_with("--")) {
                Option(word);
            } else {
                parsed_.arguments.ports.push_back(word);
            }
        }
        if (error_.empty()) {
            Finish();
        }
        parsed_.error = error_;
        return parsed_;
    }

  private:
    using Handler = void (Reader::*)(const std::string&);

    void Option(const std::string& word) {
        static const std::map<std::string, Handler> handlers{
            {"--depart", &Reader::Depart},   {"--zone", &Reader::Zone},     {"--speed", &Reader::Speed},
            {"--weather", &Reader::Weather}, {"--stay", &Reader::Stay},     {"--purpose", &Reader::Purpose},
            {"--units", &Reader::Units},     {"--format", &Reader::Format}, {"--save", &Reader::Save},
            {"--picture", &Reader::Picture}};
        const std::size_t equals = word.find('=');
        const auto handler = handlers.find(word.substr(0, equals));
        if (handler == handlers.end()) {
            error_ = "Unknown option " + Quoted(word) + ". See plan --help.";
        } else if (equals != std::string::npos) {
            (this->*handler->second)(word.substr(equals + 1));
        } else if (at_ + 1 == words_.size()) {
            error_ = "The option " + word + " needs a value. See plan --help.";
        } else {
            (this->*handler->second)(words_[++at_]);
        }
    }

    void Bad(const std::string& option, const std::string& value, const std::string& good) {
        error_ = "Bad value " + Quoted(value) + " of " + option + ": give " + good + ".";
    }

    /// The values between the commas; without any the option is bad.
    std::vector<std::string> Pieces(const std::string& option, const std::string& value,
                                    const std::string& good) {
        std::vector<std::string> pieces;
        Util::StringUtl::split(value, ",", pieces);
        if (pieces.empty()) {
            Bad(option, value, good);
        }
        return pieces;
    }

    void Depart(const std::string& value) {
        parsed_.arguments.depart = ReadDepart(value);
        if (!parsed_.arguments.depart) {
            Bad("--depart", value,
                "a date, or a date and time, that exist, as 2026-12-01, \"2026-12-01 08:00\" or "
                "2026-12-01T08:00Z");
        }
    }

    void Zone(const std::string& value) {
        if (!Util::DateTimeUtl::IsKnownZone(value)) {
            Bad("--zone", value,
                "a time zone's name, as " + Quoted(Util::kPlanZone) + ", \"Europe/Amsterdam\" or \"UTC\"");
        }
        parsed_.arguments.zone = value;
    }

    void Speed(const std::string& value) {
        const auto number = ReadNumber(value);
        if (!number || *number < Interface::kLeastKnots || *number > kMaxSpeedKnots) {
            return Bad("--speed", value,
                       Util::StringUtl::Format("knots above 0, from %g to %g", Interface::kLeastKnots,
                                               kMaxSpeedKnots));
        }
        parsed_.arguments.speed = *number;
    }

    void Weather(const std::string& value) {
        const auto number = ReadNumber(value.ends_with("%") ? value.substr(0, value.size() - 1) : value);
        if (!number || *number < 0 || *number >= 100) {
            return Bad("--weather", value, "a percentage from 0 to below 100");
        }
        parsed_.arguments.weather = *number / 100.0;
    }

    void Stay(const std::string& value) {
        for (const std::string& piece : Pieces("--stay", value, "hours in port")) {
            const auto number = ReadNumber(piece);
            if (!number || *number < 0 || *number > kMaxStayHours) {
                return Bad("--stay", piece,
                           "hours in port from 0 to 10000, one for all ports or one for each");
            }
            parsed_.arguments.stays.push_back(*number);
        }
    }

    void Purpose(const std::string& value) {
        const std::string good = "codes out of " + Interface::PurposeCodes(", ");
        for (std::string piece : Pieces("--purpose", value, good)) {
            if (piece.size() == 1 && piece[0] >= 'a' && piece[0] <= 'z') {
                piece[0] = static_cast<char>(piece[0] - 32);
            }
            if (!Interface::IsPurposeCode(piece)) {
                return Bad("--purpose", piece, good);
            }
            parsed_.arguments.purposes.push_back(piece);
        }
    }

    void Units(const std::string& value) {
        PlanArguments& to = parsed_.arguments;
        std::map<std::string, std::pair<std::string*, const char*>> known;
        const auto offer = [&known](std::string& field, std::span<const char* const> units) {
            for (const char* unit : units) {
                known[FoldCase(unit)] = {&field, unit};
            }
        };
        offer(to.speedUnit, Interface::kSpeedUnits);
        offer(to.distanceUnit, Interface::kDistanceUnits);
        offer(to.timeUnit, Interface::kTimeUnits);
        const std::string good = "any of " + Interface::UnitChoices(" or ", ", ");
        for (const std::string& piece : Pieces("--units", value, good)) {
            const auto unit = known.find(FoldCase(piece));
            if (unit == known.end()) {
                return Bad("--units", piece, good);
            }
            *unit->second.first = unit->second.second;
        }
    }

    void Format(const std::string& value) {
        static const std::map<std::string, PlanFormat> known{{"table", PlanFormat::Table},
                                                             {"json", PlanFormat::Json},
                                                             {"csv", PlanFormat::Csv},
                                                             {"geojson", PlanFormat::GeoJson}};
        const auto found = known.find(FoldCase(value));
        if (found == known.end()) {
            return Bad("--format", value, "table, json, csv or geojson");
        }
        parsed_.arguments.format = found->second;
    }

    void Save(const std::string& value) {
        const std::size_t slash = value.find('/');
        if (slash == std::string::npos || slash == 0 || slash + 1 == value.size()) {
            return Bad("--save", value, "CATEGORY/VOYAGE");
        }
        parsed_.arguments.saveCategory = value.substr(0, slash);
        parsed_.arguments.saveVoyage = value.substr(slash + 1);
    }

    void Picture(const std::string& value) {
        if (value.empty()) {
            return Bad("--picture", value, "a file name, as route.png");
        }
        parsed_.arguments.picture = value;
    }

    /// One value counts for all ports; of several each port has its own. Without any the first port takes
    /// `first`, the others `rest`.
    template <class T>
    void Spread(std::vector<T>& values, const char* option, const T& first, const T& rest) {
        const std::size_t ports = parsed_.arguments.ports.size();
        if (values.size() == 1) {
            values.resize(ports, T(values.front()));
        }
        if (values.empty()) {
            values.push_back(first);
            values.resize(ports, rest);
        }
        if (values.size() != ports) {
            error_ = std::to_string(values.size()) + " values of " + option + " for " +
                     std::to_string(ports) + " ports: give one for all, or one for each.";
        }
    }

    void Finish() {
        const auto& ports = parsed_.arguments.ports;
        if (ports.size() < 2) {
            error_ = ports.empty() ? "No ports given: name two or more. See plan --help."
                                   : "Only one port given, " + Quoted(ports[0]) + ": name two or more.";
            return;
        }
        Spread<double>(parsed_.arguments.stays, "--stay", 0.0, 0.0);
        if (error_.empty()) {
            Spread<std::string>(parsed_.arguments.purposes, "--purpose", "L", "D");
        }
    }

    const std::vector<std::string>& words_;
    std::size_t at_ = 0;
    std::string error_;
    ParsedPlan parsed_;
};

}  // namespace

std::optional<double> ReadNumber(const std::string& text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, failed] = std::from_chars(text.data(), end, value);
    if (failed != std::errc() || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

ParsedPlan ParsePlanArguments(const std::vector<std::string>& words) {
    return Reader(words).Run();
}

}  // namespace Tarvik::Client
