// SPDX-License-Identifier: MIT
#include "host/server/net/service/Endpoints.h"
#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

Answered HealthEndpoint::Health() {
    constexpr std::chrono::seconds kHolds{1};
    const std::scoped_lock lock(mutex_);
    const auto now = std::chrono::steady_clock::now();
    if (!looked_ || now - *looked_ >= kHolds) {
        trouble_ = Look();
        looked_ = std::chrono::steady_clock::now();
    }
    const bool well = trouble_.empty();
    const char* text = well ? "{\"status\":\"ok\"}" : "{\"status\":\"the data base does not answer\"}";
    return {{well ? 200 : 503, "application/json", text, {}}, "health", well ? "ok" : "failed", {}, trouble_};
}

std::string HealthEndpoint::Look() {
    // Nobody has these names: each is a search or a change that meets nothing.
    if (const auto found = accounts_.FindUser({}); !found) {
        return found.GetFault().detail;
    }
    if (const auto changed = accounts_.SetDisabled({}, false); !changed) {
        return changed.GetFault().detail;
    }
    if (const auto loaded = storage_.Catalog().LoadCatalog({}); !loaded) {
        return loaded.GetFault().detail;
    }
    const Status written = storage_.Check();
    return written ? std::string() : written.GetFault().detail;
}

}  // namespace Tarvik::Server
