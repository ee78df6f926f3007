// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Seaplan {

/// The route reply on which the stand-alone calculator runs: three stops, 40389 by 40208 to 40430, with
/// thirteen and four legs and five groups of alternatives. It never asks a server.
const char* SampleReply();

}  // namespace Tarvik::Seaplan
