// SPDX-License-Identifier: MIT
#include "seaplan/plugin/BusClient.h"

#include <utility>

namespace Tarvik::Seaplan {

BusClient::~BusClient() {
    Withdraw();
}

bool BusClient::Bind(Kind kind, const char* name, std::unique_ptr<Core::TEvent> delegate) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    bool bound = false;
    switch (kind) {
        case Kind::Service:
            kernel->CreateTrvService(name, this, "", "", nullptr);
            bound = kernel->BindTrvService(name, delegate.get());
            break;
        case Kind::OwnEvent:
            kernel->CreateTrvEvent(name, this, "", "", nullptr);
            bound = kernel->BindTrvEvent(name, delegate.get());
            break;
        case Kind::Subscription:
            bound = kernel->BindTrvEvent(name, delegate.get());
            break;
    }
    if (bound) {
        bindings_.push_back({kind, name, std::move(delegate)});
    }
    return bound;
}

void BusClient::Release(const Binding& binding) {
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    const char* name = binding.name.c_str();
    if (binding.kind == Kind::Service) {
        kernel->UnBindTrvService(name, binding.delegate.get());
        kernel->DeleteTrvService(name, this);
        return;
    }
    kernel->UnBindTrvEvent(name, binding.delegate.get());
    if (binding.kind == Kind::OwnEvent) {
        kernel->DeleteTrvEvent(name, this);
    }
}

void BusClient::Withdraw() {
    while (!bindings_.empty()) {
        Release(bindings_.back());
        bindings_.pop_back();
    }
}

}  // namespace Tarvik::Seaplan
