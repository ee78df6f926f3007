// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include <tarvik/interface/ServerRequest.h>

namespace Tarvik::Client {

/// A request in memory as a caller of the exchange makes it.
class RequestBlock {
  public:
    RequestBlock(std::uint16_t command, std::uint16_t moduleWord, const std::string& text)
        : words_((sizeof(Interface::VoyServerRequest) + text.size()) / sizeof(std::uint64_t) + 1) {
        auto* head = reinterpret_cast<Interface::VoyServerRequest*>(words_.data());
        *head = {static_cast<std::uint32_t>(text.size()), command, moduleWord};
        std::memcpy(head->Payload(), text.data(), text.size());
    }
    const Interface::VoyServerRequest& operator*() const {
        return *reinterpret_cast<const Interface::VoyServerRequest*>(words_.data());
    }

  private:
    std::vector<std::uint64_t> words_;
};

}  // namespace Tarvik::Client
