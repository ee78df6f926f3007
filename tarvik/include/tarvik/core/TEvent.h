// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik::Core {

/// A delegate of the bus: object pointer and member function, two machine words.
///
/// The bus keeps a pointer to the delegate, so a delegate is fixed in place from binding to unbinding: it can
/// be neither copied nor moved, and each owner keeps one member per binding.
class TEvent {
  public:
    TEvent() = default;
    TEvent(const TEvent&) = delete;
    TEvent& operator=(const TEvent&) = delete;

    /// Ties the delegate to `object->*Method`, a member of the form `void* handler(void* input)`.
    template <auto Method, class T>
    void Set(T* object) {
        object_ = object;
        thunk_ = [](void* self, void* input) -> void* { return (static_cast<T*>(self)->*Method)(input); };
    }

    /// True once `Set` has been called.
    bool IsSet() const { return thunk_ != nullptr; }

    /// Calls the handler; an empty delegate answers null.
    void* Call(void* input) const { return thunk_ ? thunk_(object_, input) : nullptr; }

  private:
    void* object_ = nullptr;
    void* (*thunk_)(void*, void*) = nullptr;
};

}  // namespace Tarvik::Core
