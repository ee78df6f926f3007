// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <tarvik/skin/Words.h>

#include "host/client/places/OwnPortDraft.h"
#include "host/client/session/OwnPorts.h"

namespace Tarvik::Client {

/// The text of a key of the windows for own ports.
inline QString PortWord(const char* key) {
    return Skin::Word("OwnPorts", key);
}

/// What a change that was not made is told by; empty for one that was.
inline QString WordOf(PortOutcome outcome) {
    switch (outcome) {
        case PortOutcome::Done:
            return {};
        case PortOutcome::NotLoaded:
            return PortWord("NOT_SHOWN");
        case PortOutcome::NoUser:
            return PortWord("NO_USER");
        case PortOutcome::NoServer:
            return PortWord("NO_SERVER");
        case PortOutcome::Full:
            return PortWord("FULL");
        case PortOutcome::Gone:
            return PortWord("GONE");
        case PortOutcome::Refused:
            break;
    }
    return PortWord("REFUSED");
}

/// What is told of a fault.
inline QString WordOf(PortFault fault) {
    switch (fault) {
        case PortFault::NameMissing:
            return PortWord("NAME_MISSING");
        case PortFault::NameLong:
            return PortWord("NAME_LONG");
        case PortFault::NameSigns:
            return PortWord("NAME_SIGNS");
        case PortFault::NameTaken:
            return PortWord("NAME_TAKEN");
        case PortFault::NameOwn:
            return PortWord("NAME_OWN");
        case PortFault::PlaceMissing:
            return PortWord("PLACE_MISSING");
        case PortFault::PlaceUnread:
            break;
    }
    return PortWord("PLACE_UNREAD");
}

}  // namespace Tarvik::Client
