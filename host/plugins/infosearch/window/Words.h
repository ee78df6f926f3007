// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/skin/Words.h>

namespace Tarvik::InfoSearch {

/// The plug-in's text of a key.
inline QString Word(const char* key) {
    return Skin::Word("InfoSearch", key);
}

}  // namespace Tarvik::InfoSearch
