// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>
#include <iterator>
#include <string>

#include <tarvik/interface/LoadString.h>
#include <tarvik/interface/SysMsgSink.h>

namespace Tarvik::Skin {

/// A plug-in's text of a key, as "NAME", in the language that the person chose: `section` is the plug-in's
/// part of the language files. The key itself where no language has it, so that a gap is seen.
inline QString Word(const char* section, const char* key) {
    char16_t buffer[512];
    const std::u16string part = QString::fromLatin1(section).toStdU16String();
    const std::u16string name = QString::fromLatin1(key).toStdU16String();
    Interface::TrvLoadString(part.c_str(), part.c_str(), name.c_str(), buffer, name.c_str(),
                             std::size(buffer));
    return QString::fromUtf16(buffer);
}

/// Asks a person a question over a window; true for yes.
inline bool Agreed(const QString& question, QWidget* owner) {
    constexpr int kQuestion = 4;
    return Interface::SysMsgSink::Instance()->SyncSendMsg(Interface::kMessageLevel, question.toStdU16String(),
                                                          kQuestion, owner,
                                                          u"") == Interface::SysMsgHandleRes::Yes;
}

}  // namespace Tarvik::Skin
