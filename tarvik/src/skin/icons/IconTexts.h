// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace Tarvik::Skin {

/// Inner SVG of each icon on a field of 16 by 16; strokes take the group's colour, fills say "currentColor".
const std::map<std::string, std::string>& IconTexts();

}  // namespace Tarvik::Skin
