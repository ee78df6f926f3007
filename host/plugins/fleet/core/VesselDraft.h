// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include <tarvik/interface/SiblingRecords.h>

namespace Tarvik::Fleet {

/// What is wrong with a typed vessel.
enum class Fault {
    NameMissing,
    NameLong,      ///< more than 64 characters
    MmsiDigits,    ///< not nine digits
    MmsiCountry,   ///< nine digits, but no ship's: the first three must be 201 to 775
    ImoDigits,     ///< not seven digits
    ImoCheck,      ///< the last digit does not fit the others
    CallSignLong,  ///< more than 12 characters
    TypeLong,      ///< more than 64 characters
    Length,        ///< no number from 0 to 500
    Speed          ///< no number from 0 to 60
};

/// A vessel as a person types it, or as a file has it: texts. Empty ones but the name are not known.
struct VesselDraft {
    std::string name;
    std::string mmsi;
    std::string imo;  ///< with or without "IMO" before it
    std::string callSign;
    std::string type;
    std::string length;  ///< metres
    std::string speed;   ///< knots

    static VesselDraft Of(const Interface::FleetVessel& vessel);

    /// The first thing that is wrong; nothing when it is a vessel.
    std::optional<Fault> Check() const;
    /// The vessel, without an id; only what Check passes. Blanks around texts are dropped, and what no
    /// voyage's request can hold (' " \ &) becomes fullwidth.
    Interface::FleetVessel Vessel() const;
};

/// A speed as precise as it is kept: the server has km/h to the thousandth, a person knots to the hundredth.
double KeptSpeed(double knots);

/// Key of the text that tells a fault to a person.
const char* KeyOf(Fault fault);

}  // namespace Tarvik::Fleet
