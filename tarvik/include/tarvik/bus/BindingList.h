// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include <tarvik/Export.h>

namespace Tarvik::Core {
class TObject;
}

/// What keeps handlers on the bus, for headers with such members. Binding.h makes them.
namespace Tarvik::Interface {

/// What is taken back when a binding ends. The forms of own names differ only in the bus operations that they
/// use.
enum class BindingKind {
    Service,       ///< an own service: created and bound, unbound and deleted
    OwnEvent,      ///< an own event: created and bound, unbound and deleted
    ClickChannel,  ///< an own event that is unbound and deleted by the forms for services
    Subscription   ///< somebody else's event: bound and unbound
};

namespace Detail {
class BoundHandler;
}

/// One handler on the bus; whoever keeps it keeps the handler bound. What ends it, unbinds the handler and
/// deletes an own name: the end of its life, Withdraw, or another binding moved into it, which is bound first
/// and therefore refused while both are of one service.
class TARVIK_API Binding {
  public:
    Binding() = default;
    /// The handler stays bound, and `other` is empty.
    Binding(Binding&& other) noexcept = default;
    /// The same, after what this one kept has been taken off the bus.
    Binding& operator=(Binding&& other) noexcept;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;
    ~Binding();

    /// False for an empty one, so also when the bus refused the handler, since another has the service.
    bool IsBound() const { return handler_ != nullptr; }
    /// Takes the handler off the bus; an empty binding stays empty.
    void Withdraw();

    /// What Offer, Announce and Subscribe of Binding.h make; they check the handler's types.
    template <class In, class Out, class Handler>
    static Binding Make(BindingKind kind, const char* name, Core::TObject* owner, Handler handler);

  private:
    std::shared_ptr<Detail::BoundHandler> handler_;
};

/// Bindings of one owner, withdrawn in the opposite order.
class TARVIK_API BindingList {
  public:
    BindingList() = default;
    BindingList(const BindingList&) = delete;
    BindingList& operator=(const BindingList&) = delete;
    ~BindingList();

    /// Keeps a binding; an empty one is not kept. Gives whether it was bound.
    bool Keep(Binding binding);
    /// Takes all handlers off the bus.
    void Withdraw();

  private:
    std::vector<Binding> bindings_;
};

}  // namespace Tarvik::Interface
