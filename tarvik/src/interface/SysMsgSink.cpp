// SPDX-License-Identifier: MIT
#include <tarvik/interface/SysMsgSink.h>

namespace Tarvik::Interface {

namespace {

/// Stands in when there is no host to show anything.
class SilentSink : public SysMsgSink {
  public:
    SysMsgHandleRes SyncSendMsg(int, const std::u16string&, int, void*, const std::u16string&) override {
        return SysMsgHandleRes::None;
    }
};

SysMsgSink* currentSink = nullptr;

}  // namespace

SysMsgSink::~SysMsgSink() = default;

SysMsgSink* SysMsgSink::Instance() {
    static auto* silent = new SilentSink;
    return currentSink != nullptr ? currentSink : silent;
}

void SysMsgSink::Set(SysMsgSink* sink) {
    currentSink = sink;
}

}  // namespace Tarvik::Interface
