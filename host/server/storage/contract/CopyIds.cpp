// SPDX-License-Identifier: MIT
#include <algorithm>

#include "host/server/storage/contract/TransferStorage.h"

namespace Tarvik::Server {

std::size_t CopyIds::LengthOfId(const RemarkObject& object) const {
    const std::string& id = object.id;
    if (object.type == kCategoryRemark) {
        return categories_.contains(id) ? id.size() : 0;
    }
    if (object.type == kVoyageRemark) {
        return voyages_.contains(id) ? id.size() : 0;
    }
    if (object.type != kPortCallRemark || id.empty()) {
        return 0;
    }
    // A port's name may begin with digits: the longest id that is known counts, and some name is left.
    std::size_t length = std::min(id.find_first_not_of("0123456789"), id.size() - 1);
    while (length > 0 && !voyages_.contains(id.substr(0, length))) {
        --length;
    }
    return length;
}

RemarkObject CopyIds::Renamed(const RemarkObject& object) const {
    const std::size_t length = LengthOfId(object);
    if (length == 0) {
        return object;
    }
    const auto& ids = object.type == kCategoryRemark ? categories_ : voyages_;
    return {object.type, ids.at(object.id.substr(0, length)) + object.id.substr(length)};
}

std::string CopyIds::RenamedIn(const Renames& renames, const std::string& id) {
    const auto renamed = renames.find(id);
    return renamed == renames.end() ? id : renamed->second;
}

}  // namespace Tarvik::Server
