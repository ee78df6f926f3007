// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

/// Text of a key in the language in force, as the window system takes it.
inline QString ViewText(TextId id) {
    return QString::fromStdString(Text(id));
}

}  // namespace Tarvik::Seaplan
