// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/Messages.h"

#include <tarvik/interface/SysMsgSink.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

namespace {

enum BoxKind : int { NoticeBox = 0, OkCancelBox = 1, QuestionBox = 4 };

Interface::SysMsgHandleRes Show(const std::string& text, int kind, void* owner, const std::string& title) {
    return Interface::SysMsgSink::Instance()->SyncSendMsg(Interface::kMessageLevel,
                                                          Util::StringUtl::TranslateString(text), kind, owner,
                                                          Util::StringUtl::TranslateString(title));
}

}  // namespace

void Notice(TextId id, void* owner) {
    Show(Text(id), NoticeBox, owner, {});
}

void NoticeText(const std::string& text, void* owner, const std::string& title) {
    Show(text, NoticeBox, owner, title);
}

bool Question(TextId id, void* owner) {
    return Show(Text(id), QuestionBox, owner, {}) == Interface::SysMsgHandleRes::Yes;
}

bool OkOrCancel(TextId id, void* owner) {
    return Show(Text(id), OkCancelBox, owner, {}) == Interface::SysMsgHandleRes::Ok;
}

}  // namespace Tarvik::Seaplan
