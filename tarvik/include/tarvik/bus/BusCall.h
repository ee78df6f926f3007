// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <type_traits>
#include <vector>

#include <tarvik/Export.h>
#include <tarvik/bus/BusName.h>

namespace Tarvik::Interface {

namespace Detail {

TARVIK_API void* CallByName(const char* name, const void* input);
TARVIK_API std::vector<void*> RaiseByName(const char* name, const void* input);
TARVIK_API bool IsBound(const char* name);

template <class Out>
using Answer = std::conditional_t<std::is_same_v<Out, None>, void, Out*>;

template <class Out>
Answer<Out> CallTyped(const char* name, const void* input) {
    void* answer = CallByName(name, input);
    if constexpr (!std::is_same_v<Out, None>) {
        return static_cast<Out*>(answer);
    }
}

template <class Out>
auto RaiseTyped(const char* name, const void* input) {
    const std::vector<void*> answers = RaiseByName(name, input);
    if constexpr (std::is_same_v<Out, None>) {
        return answers.size();
    } else {
        std::vector<Out*> typed;
        typed.reserve(answers.size());
        for (void* answer : answers) {
            typed.push_back(static_cast<Out*>(answer));
        }
        return typed;
    }
}

}  // namespace Detail

/// Calls a service; null when nobody offers it. Whose the answer is stands beside the service's constant.
template <class In, class Out>
    requires(!std::is_same_v<In, None>)
Detail::Answer<Out> Call(const Service<In, Out>& service, std::type_identity_t<In>* input) {
    return Detail::CallTyped<Out>(service.name, input);
}

/// Calls a service that takes nothing.
template <class Out>
Detail::Answer<Out> Call(const Service<None, Out>& service) {
    return Detail::CallTyped<Out>(service.name, nullptr);
}

/// Raises an event for all its subscribers, in order of subscription. Gives their answers in the same order,
/// or, of an event that is not answered, the number of subscribers.
template <class In, class Out>
    requires(!std::is_same_v<In, None>)
auto Raise(const Event<In, Out>& event, std::type_identity_t<In>* input) {
    return Detail::RaiseTyped<Out>(event.name, input);
}

/// Raises an event that carries nothing.
template <class Out>
auto Raise(const Event<None, Out>& event) {
    return Detail::RaiseTyped<Out>(event.name, nullptr);
}

/// Whether somebody answers the service.
template <class In, class Out>
bool IsOffered(const Service<In, Out>& service) {
    return Detail::IsBound(service.name);
}

}  // namespace Tarvik::Interface
