// SPDX-License-Identifier: MIT
#include "seaplan/panels/window/Boxes.h"

#include <tarvik/interface/SysMsgSink.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/window/BoxOwner.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::SysMsgHandleRes;
using Util::StringUtl;

enum BoxKind : int { NoticeBox = 0, OkCancelBox = 1, QuestionBox = 4 };

std::string Lines(TextId id, const std::string& detail) {
    return detail.empty() ? Text(id) : Text(id) + '\n' + detail;
}

}  // namespace

SysMsgHandleRes Boxes::Ask(const std::string& text, int kind, const std::string& title) {
    // A box that comes up over a box must not enable the window for the first one.
    if (open_++ == 0) {
        owner_->SetEnabled(false);
    }
    const SysMsgHandleRes answer = Interface::SysMsgSink::Instance()->SyncSendMsg(
        Interface::kMessageLevel, StringUtl::TranslateString(text), kind, owner_->Handle(),
        StringUtl::TranslateString(title));
    if (--open_ == 0) {
        owner_->SetEnabled(true);
    }
    return answer;
}

void Boxes::Notice(TextId id, const std::string& detail) {
    Ask(Lines(id, detail), NoticeBox, {});
}

void Boxes::NoticeText(const std::string& text) {
    Ask(text, NoticeBox, {});
}

bool Boxes::Question(TextId id, const std::string& detail) {
    return Ask(Lines(id, detail), QuestionBox, {}) == SysMsgHandleRes::Yes;
}

bool Boxes::Denied(TextId id, const std::string& detail) {
    return Ask(Lines(id, detail), QuestionBox, {}) == SysMsgHandleRes::No;
}

bool Boxes::Confirm(TextId id, const std::string& detail) {
    return Ask(Lines(id, detail), OkCancelBox, {}) == SysMsgHandleRes::Ok;
}

void Boxes::Refusal(const std::string& text, const std::string& title) {
    Ask(text, NoticeBox, title);
}

}  // namespace Tarvik::Seaplan
