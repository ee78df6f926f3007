// SPDX-License-Identifier: MIT
#include <tarvik/bus/Binding.h>
#include <tarvik/core/TrvKernel.h>

namespace Tarvik::Interface {

namespace Detail {

BoundHandler::~BoundHandler() {
    Withdraw();
}

// An own name is created first, then the delegate is made, then bound.
bool BoundHandler::Bind(BindingKind kind, const char* name, Core::TObject* owner) {
    kind_ = kind;
    name_ = name;
    owner_ = owner != nullptr ? owner : this;
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    if (kind == BindingKind::Service) {
        kernel->CreateTrvService(name, owner_, "", "", nullptr);
    } else if (kind != BindingKind::Subscription) {
        kernel->CreateTrvEvent(name, owner_, "", "", nullptr);
    }
    delegate_.Set<&BoundHandler::OnCall>(this);
    bound_ = kind == BindingKind::Service ? kernel->BindTrvService(name, &delegate_)
                                          : kernel->BindTrvEvent(name, &delegate_);
    return bound_;
}

// The bus keeps services and events in one table of names, so that a click channel is taken down as a
// service.
void BoundHandler::Withdraw() {
    if (!std::exchange(bound_, false)) {
        return;
    }
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    switch (kind_) {
        case BindingKind::Service:
        case BindingKind::ClickChannel:
            kernel->UnBindTrvService(name_.c_str(), &delegate_);
            kernel->DeleteTrvService(name_.c_str(), owner_);
            break;
        case BindingKind::OwnEvent:
            kernel->UnBindTrvEvent(name_.c_str(), &delegate_);
            kernel->DeleteTrvEvent(name_.c_str(), owner_);
            break;
        case BindingKind::Subscription:
            kernel->UnBindTrvEvent(name_.c_str(), &delegate_);
            break;
    }
}

}  // namespace Detail

Binding::~Binding() {
    Withdraw();
}

Binding& Binding::operator=(Binding&& other) noexcept {
    if (this != &other) {
        Withdraw();
        handler_ = std::move(other.handler_);
    }
    return *this;
}

void Binding::Withdraw() {
    if (const auto handler = std::exchange(handler_, nullptr)) {
        handler->Withdraw();
    }
}

BindingList::~BindingList() {
    Withdraw();
}

bool BindingList::Keep(Binding binding) {
    const bool bound = binding.IsBound();
    if (bound) {
        bindings_.push_back(std::move(binding));
    }
    return bound;
}

void BindingList::Withdraw() {
    while (!bindings_.empty()) {
        bindings_.pop_back();
    }
}

}  // namespace Tarvik::Interface
