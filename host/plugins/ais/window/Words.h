// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/skin/Words.h>

namespace Tarvik::Ais {

/// The plug-in's text of a key.
inline QString Word(const char* key) {
    return Skin::Word("Ais", key);
}

}  // namespace Tarvik::Ais
