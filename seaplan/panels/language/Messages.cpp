// SPDX-License-Identifier: MIT
#include "seaplan/panels/language/Messages.h"

#include "seaplan/panels/language/LoadText.h"

#include <tarvik/interface/SysMsgSink.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

enum BoxKind : int { NoticeBox = 0, OkCancelBox = 1, QuestionBox = 4 };

Interface::SysMsgHandleRes show(const std::string& text, int kind, void* owner, const std::string& title) {
    constexpr int kLevel = 1;
    return Interface::SysMsgSink::Instance()->SyncSendMsg(
        kLevel, Util::StringUtl::TranslateString(text), kind, owner, Util::StringUtl::TranslateString(title));
}

}  // namespace

void Notice(TextId id, void* owner) {
    show(Text(id), NoticeBox, owner, {});
}

void NoticeText(const std::string& text, void* owner, const std::string& title) {
    show(text, NoticeBox, owner, title);
}

bool Question(TextId id, void* owner) {
    return show(Text(id), QuestionBox, owner, {}) == Interface::SysMsgHandleRes::Yes;
}

bool OkOrCancel(TextId id, void* owner) {
    return show(Text(id), OkCancelBox, owner, {}) == Interface::SysMsgHandleRes::Ok;
}

}  // namespace Tarvik::Seaplan
