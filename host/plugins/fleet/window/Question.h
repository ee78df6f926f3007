// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <tarvik/interface/SysMsgSink.h>

namespace Tarvik::Fleet {

/// Asks a person a question over a window; true for yes.
inline bool Agreed(const QString& question, QWidget* owner) {
    constexpr int kQuestion = 4;
    return Interface::SysMsgSink::Instance()->SyncSendMsg(Interface::kMessageLevel, question.toStdU16String(),
                                                          kQuestion, owner,
                                                          u"") == Interface::SysMsgHandleRes::Yes;
}

}  // namespace Tarvik::Fleet
