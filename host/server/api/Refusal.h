// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>
#include <utility>

#include "host/server/api/Errors.h"
#include "host/server/storage/contract/Outcome.h"

namespace Tarvik::Server {

/// Ends the handling of a request with an error reply. Stays inside this folder: VoyageService catches it.
class Refusal : public std::exception {
  public:
    explicit Refusal(ErrorCode code, std::string detail = {}) : code_(code), detail_(std::move(detail)) {}

    ErrorCode Code() const { return code_; }
    const std::string& Detail() const { return detail_; }
    const char* what() const noexcept override { return TextOf(code_).data(); }

  private:
    ErrorCode code_;
    std::string detail_;
};

/// The value of an outcome; a fault becomes a refusal.
template <class T>
T ValueOrRefuse(Outcome<T> outcome) {
    if (!outcome) {
        throw Refusal(CodeOf(outcome.GetFault().reason), outcome.GetFault().detail);
    }
    return std::move(outcome.Value());
}

}  // namespace Tarvik::Server
