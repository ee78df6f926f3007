// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Tarvik::Ais {

/// The plug-in's text of a key, as "NAME", in the language that the person chose; the key itself where no
/// language has it, so that a gap is seen.
QString Word(const char* key);

}  // namespace Tarvik::Ais
