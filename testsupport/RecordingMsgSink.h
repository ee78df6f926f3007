// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <vector>

#include <tarvik/interface/SysMsgSink.h>

namespace Tarvik::TestSupport {

/// Takes the person's place before message boxes. In force from its making to its end.
class RecordingMsgSink final : public Interface::SysMsgSink {
  public:
    struct Message {
        int level = 0;
        std::string text;
        int flags = 0;
        void* owner = nullptr;
        std::string title;
    };

    RecordingMsgSink() { Set(this); }
    ~RecordingMsgSink() override { Set(nullptr); }
    RecordingMsgSink(const RecordingMsgSink&) = delete;
    RecordingMsgSink& operator=(const RecordingMsgSink&) = delete;

    /// The next answer; without one the answer is None.
    void Answer(Interface::SysMsgHandleRes answer) { answers_.push_back(answer); }
    Interface::SysMsgHandleRes SyncSendMsg(int level, const std::u16string& text, int flags, void* owner,
                                           const std::u16string& title) override;
    std::vector<Message> messages;

  private:
    std::deque<Interface::SysMsgHandleRes> answers_;
};

}  // namespace Tarvik::TestSupport
