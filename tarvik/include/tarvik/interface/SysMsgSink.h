// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Interface {

/// The person's answer to a message: 0 for a notice, 1 OK, 2 cancel, 4 yes, 5 no.
enum class SysMsgHandleRes : int { None = 0, Ok = 1, Cancel = 2, Yes = 4, No = 5 };

/// The one level of messages.
inline constexpr int kMessageLevel = 1;

/// Shows messages to the person and waits for the answer. The host puts its own in force.
class TARVIK_API SysMsgSink {
  public:
    virtual ~SysMsgSink();
    /// The sink in force; never null. Without a host it answers None and shows nothing.
    static SysMsgSink* Instance();
    /// Not owned; null brings the silent sink back.
    static void Set(SysMsgSink* sink);
    /// `level` is 1; `flags` 0 notice, 1 OK or cancel, 4 question; `owner` an opaque window handle or null.
    virtual SysMsgHandleRes SyncSendMsg(int level, const std::u16string& text, int flags, void* owner,
                                        const std::u16string& title) = 0;
};

}  // namespace Tarvik::Interface
