// SPDX-License-Identifier: MIT
#include <algorithm>

#include "host/server/accounts/Credentials.h"

namespace Tarvik::Server {

namespace {

bool IsNameSign(char sign) {
    return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || (sign >= '0' && sign <= '9') ||
           sign == '.' || sign == '_' || sign == '@' || sign == '-';
}

}  // namespace

bool IsUserName(const std::string& text) {
    return !text.empty() && text.size() <= 64 && std::all_of(text.begin(), text.end(), IsNameSign);
}

}  // namespace Tarvik::Server
