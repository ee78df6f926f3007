// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace Tarvik::Server {

/// One request as the service sees it.
struct HttpRequest {
    std::string method;
    std::string target;         ///< path, and a query if there is one
    std::string authorization;  ///< the field as it stands, empty when there is none
    std::string body;
    std::string address;  ///< of the peer, without its port
};

/// One reply. The server adds length, connection and server fields.
struct HttpReply {
    int status = 200;
    std::string contentType;
    std::string body;
    std::vector<std::pair<std::string, std::string>> fields;  ///< further fields by name
};

}  // namespace Tarvik::Server
