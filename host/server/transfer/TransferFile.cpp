// SPDX-License-Identifier: MIT
#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

namespace {

std::string Count(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

std::string Summary(const TransferContent& content) {
    return Count(content.users.size(), "user", "users") + ", " +
           Count(content.categories, "category", "categories") + ", " +
           Count(content.voyages, "voyage", "voyages") + ", " + Count(content.remarks, "remark", "remarks");
}

}  // namespace Tarvik::Server
