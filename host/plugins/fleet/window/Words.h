// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <tarvik/skin/Words.h>

#include "host/plugins/fleet/store/FleetStore.h"

namespace Tarvik::Fleet {

using Skin::Agreed;

/// The plug-in's text of a key.
inline QString Word(const char* key) {
    return Skin::Word("Fleet", key);
}

/// What a change that was not made is told by; empty for one that was.
inline QString WordOf(Outcome outcome) {
    switch (outcome) {
        case Outcome::Done:
            return {};
        case Outcome::NoUser:
            return Word("NO_USER");
        case Outcome::NoServer:
            return Word("NO_SERVER");
        case Outcome::Full:
            return Word("FULL");
        case Outcome::Gone:
            return Word("GONE");
        case Outcome::Refused:
            break;
    }
    return Word("REFUSED");
}

}  // namespace Tarvik::Fleet
