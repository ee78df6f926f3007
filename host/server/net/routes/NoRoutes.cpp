// SPDX-License-Identifier: MIT
#include "host/server/api/Replies.h"
#include "host/server/net/service/Resources.h"

namespace Tarvik::Server {

namespace {

std::string Refuse() {
    return Replies::Error(ErrorCode::Internal, "this server has no sea network");
}

}  // namespace

std::string NoRoutes::Plan(std::string_view /*requestJson*/) {
    return Refuse();
}

std::string NoRoutes::Nearest(std::string_view /*requestJson*/) {
    return Refuse();
}

}  // namespace Tarvik::Server
