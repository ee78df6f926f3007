// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

/// A name of the bus, tied to the types that cross under it. The names themselves stand in the contract
/// headers beside this one; Call and Raise (BusCall.h), Offer, Announce and Subscribe (Binding.h) take their
/// constants and hold both sides to the types.
namespace Tarvik::Interface {

/// Stands where nothing crosses: a service or event without an input, or one that answers nothing.
struct None {};

/// A service `name`: takes an `In*`, which may be null, and answers an `Out*`, which is null where nobody
/// offers the service or nothing is to be told.
template <class In, class Out>
struct Service {
    static_assert(!std::is_void_v<In> && !std::is_void_v<Out>, "say None where nothing crosses");
    const char* name;  ///< as the kernel knows it; lives as long as the process
};

/// An event `name`: carries an `In*`, which may be null, to every subscriber. Where `Out` is not None each
/// subscriber answers an `Out*`.
template <class In, class Out = None>
struct Event {
    static_assert(!std::is_void_v<In> && !std::is_void_v<Out>, "say None where nothing crosses");
    const char* name;  ///< as the kernel knows it; lives as long as the process
};

}  // namespace Tarvik::Interface
