// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <string>
#include <utility>

#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>

namespace Tarvik::Seaplan {

/// Answers every exchange with the same bytes, head and all, so that a test may send what no host would.
class RawReplyHost final : public Core::TObject {
  public:
    explicit RawReplyHost(std::string bytes) : bytes_(std::move(bytes)) {
        Core::TrvKernel* kernel = Core::TrvKernel::Instance();
        kernel->CreateTrvService(Interface::Bus::ServerExchange.name, this, "", "", nullptr);
        delegate_.Set<&RawReplyHost::OnExchange>(this);
        kernel->BindTrvService(Interface::Bus::ServerExchange.name, &delegate_);
    }
    ~RawReplyHost() override {
        Core::TrvKernel* kernel = Core::TrvKernel::Instance();
        kernel->UnBindTrvService(Interface::Bus::ServerExchange.name, &delegate_);
        kernel->DeleteTrvService(Interface::Bus::ServerExchange.name, this);
    }
    RawReplyHost(const RawReplyHost&) = delete;
    RawReplyHost& operator=(const RawReplyHost&) = delete;

  private:
    void* OnExchange(void*) {
        void* block = Core::AllocateBusBlock(bytes_.size());
        std::memcpy(block, bytes_.data(), bytes_.size());
        return block;
    }

    std::string bytes_;
    Core::TEvent delegate_;
};

}  // namespace Tarvik::Seaplan
