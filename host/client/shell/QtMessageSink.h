// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/interface/SysMsgSink.h>

#include "host/client/services/LanguageFiles.h"

class QWidget;

namespace Tarvik::Client {

/// Shows messages in a box over the window that they belong to, and waits for the answer.
class QtMessageSink : public Interface::SysMsgSink {
  public:
    /// `mainWindow` takes messages without an owner; neither is owned.
    QtMessageSink(QWidget* mainWindow, const LanguageFiles& texts) : mainWindow_(mainWindow), texts_(texts) {}
    Interface::SysMsgHandleRes SyncSendMsg(int level, const std::u16string& text, int flags, void* owner,
                                           const std::u16string& title) override;

  private:
    QWidget* mainWindow_;
    const LanguageFiles& texts_;
};

}  // namespace Tarvik::Client
