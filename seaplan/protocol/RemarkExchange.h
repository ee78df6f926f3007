// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <tarvik/core/TObject.h>
#include <tarvik/interface/ServerRequest.h>

/// The remark path's own envelope and its own idea of success; the voyage path has neither.
namespace Tarvik::Seaplan {

struct RemarkBlockFree {
    void operator()(Interface::VoyServerRequest* block) const { Core::FreeBusBlock(block); }
};
/// A request or reply block of the remark path, freed with its owner.
using RemarkBlock = std::unique_ptr<Interface::VoyServerRequest, RemarkBlockFree>;

/// Builds the request around `text`: module word 0x1002, length with the terminating NUL. A NUL within the
/// text ends it.
void SendRemark(const std::string& text, RemarkBlock& request);
/// One exchange; `reply` takes the reply block. False without a reply, or when the reply parses and holds an
/// `eid` that is not 0. A reply that does not parse, or has no `eid`, counts as success.
bool SyncServer(const RemarkBlock& request, RemarkBlock& reply);

}  // namespace Tarvik::Seaplan
