// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace Tarvik::Server {

/// Passages by the names that route points have.
struct StatedPassages {
    std::vector<std::string> through;
    std::vector<std::string> without;
};

/// The passages that a remark in a table of distances names, as in "via Tsugaru-Kaikyo and south of Aleutian
/// Islands". Words that name no passage of ours are passed over.
StatedPassages PassagesOf(const std::string& remark);

}  // namespace Tarvik::Server
