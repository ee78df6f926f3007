// SPDX-License-Identifier: MIT
#include "testsupport/RecordingMsgSink.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::TestSupport {

Interface::SysMsgHandleRes RecordingMsgSink::SyncSendMsg(int level, const std::u16string& text, int flags,
                                                         void* owner, const std::u16string& title) {
    messages.push_back({level, Util::StringUtl::TranslateString(text), flags, owner,
                        Util::StringUtl::TranslateString(title)});
    if (answers_.empty()) {
        return Interface::SysMsgHandleRes::None;
    }
    const Interface::SysMsgHandleRes answer = answers_.front();
    answers_.pop_front();
    return answer;
}

}  // namespace Tarvik::TestSupport
