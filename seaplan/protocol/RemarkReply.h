// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/Jsona.h>

#include "seaplan/protocol/CRemark.h"

namespace Tarvik::Seaplan {

/// The remarks of a list reply, in its order; an element that is no object is left out. Missing texts are
/// empty, a missing number is 0.
std::vector<CRemark> ReadRemarks(const Util::Jsona& reply, int type, const std::string& objectid);
/// Local text of a reply's time, which is a decimal text of seconds after 1970 UTC; empty for anything else.
std::string RemarkTimeText(const std::string& seconds);

}  // namespace Tarvik::Seaplan
