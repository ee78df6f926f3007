// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/TextKeys.h"

/// Boxes of the plug-in: level 1, without a title. `owner` is the opaque handle of the window behind the box,
/// or null.
namespace Tarvik::Seaplan {

void Notice(TextId id, void* owner);
void NoticeText(const std::string& text, void* owner, const std::string& title = {});
/// True for yes.
bool Question(TextId id, void* owner);
/// True for OK.
bool OkOrCancel(TextId id, void* owner);

}  // namespace Tarvik::Seaplan
