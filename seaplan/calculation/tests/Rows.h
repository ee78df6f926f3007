// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// Short forms for the tests' input rows.
namespace Tarvik::Seaplan::Testing {

inline Util::_datetime_t At(int day, int hour, int minute = 0) {
    return {0, minute, hour, day, 3, 2026};
}

inline std::string Text(const Util::_datetime_t& time) {
    return time.fmt("%Y-%m-%d %H:%M:%S");
}

/// A port call with distance, speed, weather factor and stay.
inline VoyPortCall Call(std::string name, float distance, float speed = 10, float weather = 0,
                        float stay = 0) {
    VoyPortCall row;
    row.ppi = "4" + name;
    row.ppn = std::move(name);
    row.distance = distance;
    row.psp = speed;
    row.pw = weather;
    row.apt = stay;
    row.eta = At(1, 0);
    row.etd = At(1, 0);
    return row;
}

/// A book row at a position.
inline PosBookPoint Point(std::string position, int kind = PlainPoint, float speed = 10,
                          std::string track = "RL") {
    PosBookPoint row;
    row.position = std::move(position);
    row.pst = kind;
    row.psp = speed;
    row.psr = std::move(track);
    return row;
}

inline PosBookPoint Port(std::string position, float speed = 10, std::string track = "RL") {
    return Point(std::move(position), PortPoint, speed, std::move(track));
}

inline std::string Names(const PortCallRows& rows) {
    std::string joined;
    for (const auto& row : rows) {
        joined += row.ppn;
    }
    return joined;
}

inline std::string Positions(const BookPoints& rows) {
    std::string joined;
    for (const auto& row : rows) {
        joined += (joined.empty() ? "" : "|") + row.position;
    }
    return joined;
}

}  // namespace Tarvik::Seaplan::Testing
