// SPDX-License-Identifier: MIT
#include "seaplan/panels/window/StatusWords.h"

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/PlacesContract.h>

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kOwner = "Seaplan";

}  // namespace

void TellInStatusLine(const std::string& words) {
    const Interface::StatusWord word{kOwner, words, words};
    Interface::Raise(Interface::Bus::TellStatus, &word);
}

}  // namespace Tarvik::Seaplan
