// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>

namespace Tarvik::Seaplan {

/// An owner's services and subscriptions on the bus, each with a delegate that stays in its place.
class BusClient : public Core::TObject {
  public:
    BusClient() = default;
    /// Withdraws what is still bound.
    ~BusClient() override;
    BusClient(const BusClient&) = delete;
    BusClient& operator=(const BusClient&) = delete;

    /// Announces the service `name` and answers it with `object->*Method`. False when another handler has it.
    template <auto Method, class T>
    bool Offer(const char* name, T* object) {
        return Bind(Kind::Service, name, MakeDelegate<Method>(object));
    }
    /// Announces an own event and subscribes to it.
    template <auto Method, class T>
    bool Announce(const char* name, T* object) {
        return Bind(Kind::OwnEvent, name, MakeDelegate<Method>(object));
    }
    /// Subscribes to somebody else's event.
    template <auto Method, class T>
    bool Subscribe(const char* name, T* object) {
        return Bind(Kind::Subscription, name, MakeDelegate<Method>(object));
    }
    /// Takes everything back, in the opposite order.
    void Withdraw();

  private:
    enum class Kind { Service, OwnEvent, Subscription };
    struct Binding {
        Kind kind = Kind::Service;
        std::string name;
        std::unique_ptr<Core::TEvent> delegate;
    };

    template <auto Method, class T>
    static std::unique_ptr<Core::TEvent> MakeDelegate(T* object) {
        auto delegate = std::make_unique<Core::TEvent>();
        delegate->Set<Method>(object);
        return delegate;
    }
    bool Bind(Kind kind, const char* name, std::unique_ptr<Core::TEvent> delegate);
    void Release(const Binding& binding);

    std::vector<Binding> bindings_;
};

}  // namespace Tarvik::Seaplan
