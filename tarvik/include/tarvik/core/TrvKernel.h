// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <tarvik/Export.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>

namespace Tarvik::Core {

/// What the bus noticed and its callers do not see.
enum class KernelNotice {
    NobodyOffers,   ///< a service was called that nobody has bound
    BoundTwice,     ///< the same delegate was bound to a name again, or a second handler to one service
    UnknownUnbind,  ///< a delegate was unbound that is not bound
    UnknownName     ///< a name was deleted or bound that was never created
};

/// The process-wide bus of named services and named events.
///
/// Names are narrow texts; payloads are untyped pointers whose type belongs to the name (see BusContract.h).
/// All calls run synchronously on the caller's thread, the user-interface thread. Services and events share
/// one table of names, so that a channel made with the event forms may be torn down with the service forms.
class TARVIK_API TrvKernel {
  public:
    /// The bus; never null.
    static TrvKernel* Instance();
    /// Opaque handle of the host's main window, null without one. Only views and the client know what it is.
    static void* MainViewHWnd();
    /// The host's application module, opaque; null without one.
    static void* AppModule();
    /// Called once by the host.
    static void SetMainView(void* window, void* appModule);

    /// Makes a service known under `name` for `owner`, and binds `delegate` unless it is null. A service that
    /// another owner answers stays theirs. The two texts are for the host and are not read. Whoever has the
    /// types of a name uses Offer of Binding.h, which calls this and the three below in order.
    void CreateTrvService(const char* name, TObject* owner, const char* text1, const char* text2,
                          TEvent* delegate);
    /// Attaches the one handler of a service. False when the service has another handler or the delegate is
    /// null.
    bool BindTrvService(const char* name, TEvent* delegate);
    /// Takes the handler off the service; one that is not bound changes nothing.
    void UnBindTrvService(const char* name, TEvent* delegate);
    /// Removes the service with its handler; anybody but its owner changes nothing.
    void DeleteTrvService(const char* name, TObject* owner);

    /// Makes an event known under `name` for `owner`, who may be a new one, and binds `delegate` unless it is
    /// null; subscribers stay. The two texts are for the host and are not read.
    void CreateTrvEvent(const char* name, TObject* owner, const char* text1, const char* text2,
                        TEvent* delegate);
    /// Subscribes to an event, also before anybody has created it. False for null or for a delegate bound
    /// already.
    bool BindTrvEvent(const char* name, TEvent* delegate);
    /// Ends a subscription, also from within a handler; one that is not bound changes nothing.
    void UnBindTrvEvent(const char* name, TEvent* delegate);
    /// Removes the event with its subscriptions; anybody but its owner changes nothing.
    void DeleteTrvEvent(const char* name, TObject* owner);

    /// Calls a service without a result. True when somebody answered.
    bool CallTrvService(const char* name, void* input);
    /// Calls a service; `result` takes the handler's answer and stays as preset when nobody offers the
    /// service.
    bool CallTrvService(const char* name, void* input, void*& result);

    /// Host side: calls every subscriber in order of subscription; the answers, in the same order, are
    /// returned.
    std::vector<void*> RaiseTrvEvent(const char* name, void* input);

    /// Host side: whether a service has a handler, or an event a subscriber.
    bool IsBound(const char* name) const;
    /// Host side: told of every notice with the name concerned. An empty function ends it.
    void SetObserver(std::function<void(KernelNotice, const std::string&)> observer);

    TrvKernel(const TrvKernel&) = delete;
    TrvKernel& operator=(const TrvKernel&) = delete;

  private:
    friend struct BusTesting;
    TrvKernel() = default;

    struct Channel {
        bool service = false;
        bool created = false;
        TObject* owner = nullptr;
        std::vector<TEvent*> delegates;
    };
    void Create(const char* name, TObject* owner, bool service);
    void Unbind(const char* name, TEvent* delegate);
    void Remove(const char* name, TObject* owner);
    void Notice(KernelNotice kind, const std::string& name) const;

    std::map<std::string, Channel> channels_;
    std::function<void(KernelNotice, const std::string&)> observer_;
};

}  // namespace Tarvik::Core
