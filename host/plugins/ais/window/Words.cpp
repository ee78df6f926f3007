// SPDX-License-Identifier: MIT
#include "host/plugins/ais/window/Words.h"

#include <tarvik/skin/Words.h>

namespace Tarvik::Ais {

QString Word(const char* key) {
    return Skin::Word("Ais", key);
}

}  // namespace Tarvik::Ais
