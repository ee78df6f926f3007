// SPDX-License-Identifier: MIT
#include "bench/server/EchoService.h"

#include <stdexcept>

#include "host/server/net/service/VoyageServer.h"

namespace Bench {

using namespace Tarvik::Server;

void ServeEchoes(Lane lane, const ChildProcess::Ready& ready) {
    EchoService service(lane);
    HttpServer server(service, HttpLimitsOf(Settings()));
    std::string error;
    if (!server.Listen("127.0.0.1", 0, {}, error)) {
        throw std::runtime_error(error);
    }
    server.StopOnSignals();
    ready(server.Port());
    server.Run();
}

}  // namespace Bench
