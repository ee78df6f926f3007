// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <tarvik/Export.h>
#include <tarvik/bus/BindingList.h>
#include <tarvik/bus/BusName.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

/// Handlers on the bus, held to the types of the name that they answer.
///
///     class Fleet : public Core::TObject {
///         Interface::Binding all_ = Interface::Offer(Interface::Bus::AllVessels, this, &Fleet::OnAll);
///         Interface::Binding logout_ = Interface::Subscribe(Interface::Bus::Logout, [this] {
///         vessels_.clear(); });
///
/// A handler takes what the name carries: nothing for None, else `In*`, which may be null, or `In&`, and is
/// then not called for a null input. It gives nothing where the name answers None, else an `Out*`. A handler
/// of other types does not compile.
namespace Tarvik::Interface {

namespace Detail {

/// The part of a binding that stays in its place: the delegate to which the bus keeps a pointer.
class TARVIK_API BoundHandler : public Core::TObject, public std::enable_shared_from_this<BoundHandler> {
  public:
    BoundHandler() = default;
    BoundHandler(const BoundHandler&) = delete;
    BoundHandler& operator=(const BoundHandler&) = delete;
    ~BoundHandler() override;

    /// `owner` owns the name on the bus; null lets the handler own it. False when another handler has the
    /// service.
    bool Bind(BindingKind kind, const char* name, Core::TObject* owner);
    /// Unbinds, and deletes an own name; a second time changes nothing.
    void Withdraw();

  private:
    virtual void* Handle(void* input) = 0;
    /// Lives on until its call returns, whatever the handler withdraws.
    void* OnCall(void* input) {
        const auto keep = shared_from_this();
        return Handle(input);
    }

    BindingKind kind_ = BindingKind::Subscription;
    bool bound_ = false;
    std::string name_;
    Core::TObject* owner_ = nullptr;
    Core::TEvent delegate_;
};

template <class Result, class Out>
concept Answers = (std::is_same_v<Out, None> && std::is_void_v<Result>) ||
                  (!std::is_same_v<Out, None> && std::is_convertible_v<Result, Out*>);

template <class Out, class Handler, class... Input>
concept Takes =
    std::is_invocable_v<Handler&, Input...> && Answers<std::invoke_result_t<Handler&, Input...>, Out>;

/// An untyped pointer fits every handler that would have to cast, so one that takes it is none of ours.
template <class Handler, class In, class Out>
concept TakesPointer = Takes<Out, Handler, In*> && !std::is_invocable_v<Handler&, const void*>;

template <class Handler, class In, class Out>
concept Handles = (std::is_same_v<In, None> && Takes<Out, Handler>) ||
                  (!std::is_same_v<In, None> && (TakesPointer<Handler, In, Out> || Takes<Out, Handler, In&>));

/// A member function with its object.
template <class Owner, class Method>
struct Member {
    Owner* owner;
    Method method;

    template <class... Input>
        requires std::is_invocable_v<Method, Owner*, Input...>
    std::invoke_result_t<Method, Owner*, Input...> operator()(Input&&... input) const {
        return std::invoke(method, owner, std::forward<Input>(input)...);
    }
};

/// Turns an untyped payload into what its name promises.
template <class In, class Out, class Handler>
class TypedHandler final : public BoundHandler {
  public:
    explicit TypedHandler(Handler handler) : handler_(std::move(handler)) {}

  private:
    void* Handle(void* input) override {
        if constexpr (std::is_same_v<In, None>) {
            return Tell();
        } else if constexpr (TakesPointer<Handler, In, Out>) {
            return Tell(static_cast<In*>(input));
        } else {
            return input != nullptr ? Tell(*static_cast<In*>(input)) : nullptr;
        }
    }

    template <class... Input>
    void* Tell(Input&&... input) {
        if constexpr (std::is_same_v<Out, None>) {
            handler_(std::forward<Input>(input)...);
            return nullptr;
        } else {
            Out* answer = handler_(std::forward<Input>(input)...);
            return const_cast<void*>(static_cast<const void*>(answer));
        }
    }

    Handler handler_;
};

}  // namespace Detail

template <class In, class Out, class Handler>
Binding Binding::Make(BindingKind kind, const char* name, Core::TObject* owner, Handler handler) {
    auto bound = std::make_shared<Detail::TypedHandler<In, Out, Handler>>(std::move(handler));
    Binding binding;
    if (bound->Bind(kind, name, owner)) {
        binding.handler_ = std::move(bound);
    }
    return binding;
}

/// Creates the service and answers it with `handler`. Empty when another handler has it.
template <class In, class Out, class Handler>
    requires Detail::Handles<Handler, In, Out>
[[nodiscard]] Binding Offer(const Service<In, Out>& service, Handler handler) {
    return Binding::Make<In, Out>(BindingKind::Service, service.name, nullptr, std::move(handler));
}

/// The same with a member function of `owner`, which the bus knows as the service's owner and which outlives
/// the binding.
template <class In, class Out, std::derived_from<Core::TObject> Owner, class Method>
    requires Detail::Handles<Detail::Member<Owner, Method>, In, Out>
[[nodiscard]] Binding Offer(const Service<In, Out>& service, Owner* owner, Method method) {
    return Binding::Make<In, Out>(BindingKind::Service, service.name, owner,
                                  Detail::Member<Owner, Method>{owner, method});
}

/// Creates an own event and subscribes a member function of `owner` to it.
template <class In, class Out, std::derived_from<Core::TObject> Owner, class Method>
    requires Detail::Handles<Detail::Member<Owner, Method>, In, Out>
[[nodiscard]] Binding Announce(const Event<In, Out>& event, Owner* owner, Method method,
                               BindingKind kind = BindingKind::OwnEvent) {
    return Binding::Make<In, Out>(kind, event.name, owner, Detail::Member<Owner, Method>{owner, method});
}

/// Subscribes to somebody else's event, also before anybody has created it.
template <class In, class Out, class Handler>
    requires Detail::Handles<Handler, In, Out>
[[nodiscard]] Binding Subscribe(const Event<In, Out>& event, Handler handler) {
    return Binding::Make<In, Out>(BindingKind::Subscription, event.name, nullptr, std::move(handler));
}

/// The same with a member function of `object`, which outlives the binding.
template <class In, class Out, class Object, class Method>
    requires Detail::Handles<Detail::Member<Object, Method>, In, Out>
[[nodiscard]] Binding Subscribe(const Event<In, Out>& event, Object* object, Method method) {
    return Binding::Make<In, Out>(BindingKind::Subscription, event.name, nullptr,
                                  Detail::Member<Object, Method>{object, method});
}

}  // namespace Tarvik::Interface
