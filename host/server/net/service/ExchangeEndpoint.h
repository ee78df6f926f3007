// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/accounts/Sessions.h"
#include "host/server/api/VoyageService.h"
#include "host/server/net/service/Answered.h"

namespace Tarvik::Server {

/// The voyage protocol over HTTP: an envelope in, an envelope out, for the user of the token.
class ExchangeEndpoint {
  public:
    ExchangeEndpoint(VoyageService& service, Sessions& sessions) : service_(service), sessions_(sessions) {}

    /// A reply of the voyage service has status 200 also when it refuses (`eid` not 0); other statuses mean
    /// that the service was not asked.
    Answered Exchange(const HttpRequest& request);

  private:
    VoyageService& service_;
    Sessions& sessions_;
};

}  // namespace Tarvik::Server
