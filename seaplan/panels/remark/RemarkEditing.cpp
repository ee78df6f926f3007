// SPDX-License-Identifier: MIT
#include "seaplan/panels/remark/RemarkEditing.h"

#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/NoteTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kMostSubjectWidth = 127;
constexpr int kMostBodyWidth = 2999;
constexpr const char* kSubjectTooLong =
    "The title input is too long. It cannot exceed 128 characters, please re-enter.";
constexpr const char* kBodyTooLong =
    "The content input is too long. It cannot exceed 3000 characters, please re-enter.";
constexpr const char* kNotAdded = "Add the remark failed, please re-enter.";
constexpr const char* kNotChanged = "Modify the remark failed, please re-enter.";

}  // namespace

bool RemarkEditing::AskSave() {
    if (!dirty_) {
        return true;
    }
    if (IsDenied()) {
        Drop();
    } else {
        Save();
    }
    return !dirty_;
}

bool RemarkEditing::IsDenied() {
    return d_.ToPerson().Denied(TextIds::IDS_REMARKSAVETIP, d_.NameOf(subject_));
}

void RemarkEditing::SaveClick() {
    if (IsNew() || dirty_) {
        Save();
    }
    d_.Show();
}

void RemarkEditing::Drop() {
    dirty_ = false;
    d_.state.canSave = false;
    if (d_.list.Current() >= 0) {
        d_.list.Row(d_.list.Current()).unsaved = false;
    }
}

void RemarkEditing::Save() {
    // Both limits are told in the words of the title's.
    if (d_.list.Current() < 0 || IsTooLong(subject_, kMostSubjectWidth, kSubjectTooLong) ||
        IsTooLong(body_, kMostBodyWidth, kBodyTooLong)) {
        return;
    }
    const bool first = IsNew();
    const CRemark* saved = first ? SendNew() : SendChange();
    if (saved == nullptr) {
        return;
    }
    Drop();
    d_.list.Row(d_.list.Current()) = {subject_, saved->udate, false, saved};
    if (first && d_.remarks.Count() == 1) {
        d_.Mark(true);
    }
}

/// A new remark's number is one above the others', so that they must be known; their rows come behind its.
bool RemarkEditing::LoadFirst() {
    if (d_.loaded || d_.remarks.Count() > 0) {
        return true;
    }
    d_.loaded = d_.remarks.LoadRemarks(d_.object.type, d_.object.id);
    d_.AppendRows();
    d_.list.SortByTime(!d_.state.newestFirst);
    return d_.loaded;
}

const CRemark* RemarkEditing::SendNew() {
    int seq = 0;
    if (!LoadFirst() || !d_.remarks.AddRemark(d_.object.type, d_.object.id, seq, subject_, body_)) {
        Tell(TextIds::IDS_TIP_ADDRMKFAIL, kNotAdded, WhyNotSent(seq));
        return nullptr;
    }
    d_.adding = false;
    return d_.remarks.Find(d_.object.type, d_.object.id, seq);
}

const CRemark* RemarkEditing::SendChange() {
    const CRemark* remark = d_.list.Row(d_.list.Current()).remark;
    if (remark == nullptr) {
        return nullptr;
    }
    if (!d_.remarks.ChangeRemark(remark->type, remark->objectid, remark->seq, subject_, body_)) {
        Tell(TextIds::IDS_TIP_MODIFYRMKFAIL, kNotChanged, WhyNotSent(remark->seq));
        return nullptr;
    }
    return d_.remarks.Find(remark->type, remark->objectid, remark->seq);
}

bool RemarkEditing::IsTooLong(const std::string& text, int mostWidth, const char* fallback) {
    if (Util::StringUtl::Width(text) <= mostWidth) {
        return false;
    }
    Tell(TextIds::IDS_TIP_SUBJECT_LEN, fallback);
    return true;
}

/// What the person can do about a text that trying again does not help; empty for any other.
std::string RemarkEditing::WhyNotSent(int seq) const {
    return RemarkList::Fits({d_.object.type, d_.object.id, seq, subject_, body_, {}, {}})
               ? std::string()
               : Text(TextIds::IDS_TIP_SUBJECT_LEN);
}

void RemarkEditing::Tell(TextId id, const char* fallback, const std::string& detail) {
    std::string text;
    LoadText(text, static_cast<int>(id), fallback);
    d_.ToPerson().NoticeText(detail.empty() ? text : text + '\n' + detail);
}

void RemarkEditing::OnSubjectTyped(const std::string& text) {
    subject_ = text;
    Typed();
}

bool RemarkEditing::OnSubjectKey(Key key) {
    const bool leadsOn = key == Key::Enter;
    if (leadsOn) {
        d_.view.FocusBody();
    }
    return leadsOn;
}

void RemarkEditing::OnBodyTyped(const std::string& text) {
    body_ = text;
    Typed();
}

void RemarkEditing::Typed() {
    if (d_.list.Current() < 0 || dirty_) {
        return;
    }
    dirty_ = true;
    d_.list.Row(d_.list.Current()).unsaved = true;
    d_.state.canSave = true;
    d_.Show();
}

void RemarkEditing::Select(int row) {
    const bool stays = dirty_ && (row == d_.list.Current() || !AskSave());
    if (!stays) {
        Fill(row);
    }
    d_.Show();
}

void RemarkEditing::Fill(int row) {
    if (!d_.list.Has(row)) {
        return FillNothing();
    }
    d_.list.SetCurrent(row);
    const CRemark* remark = d_.list.Row(row).remark;
    subject_ = remark == nullptr ? std::string() : remark->subject;
    body_ = remark == nullptr ? std::string() : remark->body;
    d_.state.canEdit = true;
    d_.state.canSave = false;
    d_.view.ShowTexts(subject_, body_);
}

void RemarkEditing::FillNothing() {
    d_.list.SetCurrent(-1);
    subject_.clear();
    body_.clear();
    dirty_ = false;
    d_.state.canEdit = false;
    d_.state.canSave = false;
    d_.view.ShowTexts(subject_, body_);
}

}  // namespace Tarvik::Seaplan
