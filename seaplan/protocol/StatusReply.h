// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Jsona.h>

namespace Tarvik::Seaplan {

/// Puts `text` into an envelope as it stands and exchanges it. Results of SendRequest.
int SendText(const std::string& text, Interface::VoyCommand command, Util::Jsona& reply);
/// Whether a status reply says success; one without `eid` does not.
bool IsSuccess(const Util::Jsona& reply);
/// One changing command of the usual ladder, whose first number is `first`: `first` no exchange, `first` - 1
/// empty reply, `first` - 2 the server refused; 0 with the status in `reply`.
int SendChange(const std::string& text, Interface::VoyCommand command, int first, Util::Jsona& reply);
/// The same for callers that read nothing but the status.
int SendChange(const std::string& text, Interface::VoyCommand command, int first = -2);

}  // namespace Tarvik::Seaplan
