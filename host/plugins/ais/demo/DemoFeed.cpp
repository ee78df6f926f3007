// SPDX-License-Identifier: MIT
#include "host/plugins/ais/demo/DemoFeed.h"

#include <algorithm>
#include <cmath>

#include <tarvik/util/Geodesy.h>

#include "host/plugins/ais/core/SentenceWriter.h"

namespace Tarvik::Ais {

namespace {

constexpr double kPerDegree = 600'000;  ///< of places in messages
constexpr double kPlaceNoise = 1.5e-4;  ///< degrees, some 15 m
constexpr double kSpeedNoise = 0.15;    ///< knots
constexpr double kCourseNoise = 1.5;    ///< degrees
constexpr unsigned kNameEvery = 10;     ///< calls
constexpr unsigned kGapOneIn = 12;      ///< of the spans of a ship
constexpr int kMoored = 5;              ///< navigational status

int Tenths(double value, int limit) {
    return static_cast<int>(std::lround(value * 10) % limit + limit) % limit;
}

void Add(const std::vector<std::string>& lines, std::string& text) {
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
}

}  // namespace

std::string DemoFeed::Next(std::int64_t time) {
    std::string text;
    const bool names = calls_++ % kNameEvery == 0;
    int sequence = 0;
    for (const DemoShip& ship : ships_) {
        if (names) {
            Add(Sentences(VoyageData(ship.mmsi, ship.name, "DEMO", ""), sequence++ % 10), text);
        }
        if (!IsHeard(ship, time)) {
            continue;
        }
        const DemoPlace place = PlaceOf(ship, time);
        RawMovement raw{1, ship.mmsi};
        raw.status = place.sails ? 0 : kMoored;
        raw.longitude = std::llround(
            std::clamp(place.at.longitude + Noise(kPlaceNoise), -Util::kMostLongitude, Util::kMostLongitude) *
            kPerDegree);
        raw.latitude = std::llround((place.at.latitude + Noise(kPlaceNoise)) * kPerDegree);
        raw.speed = place.sails
                        ? static_cast<int>(std::lround(std::max(0.0, place.knots + Noise(kSpeedNoise)) * 10))
                        : 0;
        raw.course = Tenths(place.course + Noise(kCourseNoise), 3600);
        raw.heading = place.sails ? Tenths(place.course, 3600) / 10 : 511;
        raw.second = static_cast<int>(time % 60);
        Add(Sentences(ClassA(raw)), text);
    }
    return text;
}

/// By ship and span of time alone, so that a gap is a gap however often is asked.
bool DemoFeed::IsHeard(const DemoShip& ship, std::int64_t time) const {
    const auto span = static_cast<std::uint32_t>(time / kGapLength);
    std::mt19937 chance(ship.mmsi ^ span * 2654435761U);
    return chance() % kGapOneIn != 0;
}

double DemoFeed::Noise(double spread) {
    return std::normal_distribution<double>(0, spread)(random_);
}

}  // namespace Tarvik::Ais
