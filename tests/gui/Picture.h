// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Programs {

/// The pixels of a rectangle out of a picture in the form that Person::Look gives; empty when the rectangle
/// does not lie within it.
std::string Cut(const std::string& picture, int left, int top, int width, int height);

/// Writes a picture to the folder that the environment's SEAPLAN_TEST_PICTURES names, if it does.
void Keep(const std::string& name, const std::string& picture);

}  // namespace Tarvik::Programs
