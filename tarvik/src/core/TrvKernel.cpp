// SPDX-License-Identifier: MIT
// The bus: one table of channels by name. A call costs a look-up, O(log n) in the names; raising an event
// looks each subscriber up again, since a handler may take others off.
#include <algorithm>
#include <utility>

#include <tarvik/core/TrvKernel.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Core {

namespace {

void* mainView = nullptr;
void* appModuleHandle = nullptr;

bool Contains(const std::vector<TEvent*>& delegates, const TEvent* delegate) {
    return std::find(delegates.begin(), delegates.end(), delegate) != delegates.end();
}

}  // namespace

// Never destroyed: plug-ins may unbind from their static destructors.
TrvKernel* TrvKernel::Instance() {
    static auto* kernel = new TrvKernel;
    return kernel;
}

void* TrvKernel::MainViewHWnd() {
    return mainView;
}

void* TrvKernel::AppModule() {
    return appModuleHandle;
}

void TrvKernel::SetMainView(void* window, void* appModule) {
    mainView = window;
    appModuleHandle = appModule;
}

void TrvKernel::CreateTrvService(const char* name, TObject* owner, const char*, const char*,
                                 TEvent* delegate) {
    Create(name, owner, true);
    if (delegate != nullptr) {
        BindTrvService(name, delegate);
    }
}

bool TrvKernel::BindTrvService(const char* name, TEvent* delegate) {
    if (name == nullptr || delegate == nullptr) {
        return false;
    }
    Channel& channel = channels_[name];
    if (!channel.delegates.empty()) {
        Notice(KernelNotice::BoundTwice, name);
        return false;
    }
    const bool created = channel.created;
    if (!created) {
        channel.service = true;
    }
    channel.delegates.push_back(delegate);
    if (!created) {
        Notice(KernelNotice::UnknownName, name);
    }
    return true;
}

void TrvKernel::UnBindTrvService(const char* name, TEvent* delegate) {
    Unbind(name, delegate);
}

void TrvKernel::DeleteTrvService(const char* name, TObject* owner) {
    Remove(name, owner);
}

void TrvKernel::CreateTrvEvent(const char* name, TObject* owner, const char*, const char*, TEvent* delegate) {
    Create(name, owner, false);
    if (delegate != nullptr) {
        BindTrvEvent(name, delegate);
    }
}

bool TrvKernel::BindTrvEvent(const char* name, TEvent* delegate) {
    if (name == nullptr || delegate == nullptr) {
        return false;
    }
    Channel& channel = channels_[name];
    const bool taken = channel.service && !channel.delegates.empty();
    if (taken || Contains(channel.delegates, delegate)) {
        Notice(KernelNotice::BoundTwice, name);
        return false;
    }
    channel.delegates.push_back(delegate);
    return true;
}

void TrvKernel::UnBindTrvEvent(const char* name, TEvent* delegate) {
    Unbind(name, delegate);
}

void TrvKernel::DeleteTrvEvent(const char* name, TObject* owner) {
    Remove(name, owner);
}

bool TrvKernel::CallTrvService(const char* name, void* input) {
    void* result = nullptr;
    return CallTrvService(name, input, result);
}

bool TrvKernel::CallTrvService(const char* name, void* input, void*& result) {
    if (name == nullptr) {
        return false;
    }
    const auto found = channels_.find(name);
    if (found == channels_.end() || !found->second.service || found->second.delegates.empty()) {
        Notice(KernelNotice::NobodyOffers, name);
        return false;
    }
    result = found->second.delegates.front()->Call(input);
    return true;
}

// A handler may unbind itself or others, or delete the event: each delegate is looked up again before its
// call, and one that subscribes meanwhile waits for the next time.
std::vector<void*> TrvKernel::RaiseTrvEvent(const char* name, void* input) {
    std::vector<void*> answers;
    if (name == nullptr) {
        return answers;
    }
    const std::string key = name;
    const auto found = channels_.find(key);
    if (found == channels_.end()) {
        return answers;
    }
    const std::vector<TEvent*> snapshot = found->second.delegates;
    for (TEvent* delegate : snapshot) {
        const auto current = channels_.find(key);
        if (current == channels_.end()) {
            break;
        }
        if (Contains(current->second.delegates, delegate)) {
            answers.push_back(delegate->Call(input));
        }
    }
    return answers;
}

bool TrvKernel::IsBound(const char* name) const {
    if (name == nullptr) {
        return false;
    }
    const auto found = channels_.find(name);
    return found != channels_.end() && !found->second.delegates.empty();
}

void TrvKernel::SetObserver(std::function<void(KernelNotice, const std::string&)> observer) {
    observer_ = std::move(observer);
}

void BusTesting::ForgetAll() {
    TrvKernel::Instance()->channels_.clear();
}

// Creating a name again passes it to the new owner; its subscribers stay.
void TrvKernel::Create(const char* name, TObject* owner, bool service) {
    if (name == nullptr) {
        return;
    }
    Channel& channel = channels_[name];
    // Whoever answers a service keeps it: a second owner would otherwise be able to remove it.
    const bool answered = channel.created && channel.service && !channel.delegates.empty();
    if (service && answered && channel.owner != owner) {
        Notice(KernelNotice::BoundTwice, name);
        return;
    }
    channel.service = service;
    channel.created = true;
    channel.owner = owner;
}

void TrvKernel::Unbind(const char* name, TEvent* delegate) {
    if (name == nullptr) {
        return;
    }
    const auto found = channels_.find(name);
    if (found == channels_.end() || std::erase(found->second.delegates, delegate) == 0) {
        Notice(KernelNotice::UnknownUnbind, name);
        return;
    }
    if (!found->second.created && found->second.delegates.empty()) {
        channels_.erase(found);
    }
}

// Only the owner may delete; its name goes with all bindings.
void TrvKernel::Remove(const char* name, TObject* owner) {
    if (name == nullptr) {
        return;
    }
    const auto found = channels_.find(name);
    if (found == channels_.end() || !found->second.created || found->second.owner != owner) {
        Notice(KernelNotice::UnknownName, name);
        return;
    }
    channels_.erase(found);
}

// The observer is copied, since it may replace itself.
void TrvKernel::Notice(KernelNotice kind, const std::string& name) const {
    const auto observer = observer_;
    if (observer) {
        observer(kind, name);
    }
}

}  // namespace Tarvik::Core
