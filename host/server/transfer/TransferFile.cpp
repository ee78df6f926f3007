// SPDX-License-Identifier: MIT
#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

namespace {

std::string Told(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

void Count(const OwnerCopy& records, TransferContent& content) {
    content.categories += records.categories.size();
    for (const CategoryCopy& category : records.categories) {
        content.voyages += category.voyages.size();
    }
    content.remarks += records.remarks.size();
    content.vessels += records.fleet.size();
    content.places += records.places.size();
}

std::string Summary(const TransferContent& content) {
    std::string text = Told(content.users.size(), "user", "users") + ", " +
                       Told(content.categories, "category", "categories") + ", " +
                       Told(content.voyages, "voyage", "voyages") + ", " +
                       Told(content.remarks, "remark", "remarks");
    if (content.vessels > 0) {
        text += ", " + Told(content.vessels, "vessel", "vessels");
    }
    if (content.places > 0) {
        text += ", " + Told(content.places, "own port", "own ports");
    }
    return text;
}

}  // namespace Tarvik::Server
