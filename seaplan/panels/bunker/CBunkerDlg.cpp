// SPDX-License-Identifier: MIT
#include "seaplan/panels/bunker/CBunkerDlg.h"

#include <utility>

#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/NoteTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

/// Of a language file without a title.
constexpr const char* kTitle = "消耗设置";
constexpr unsigned kMost = 500000;
/// So many letters of a field are read.
constexpr std::size_t kLettersRead = 128;

int NumberOf(const std::string& text) {
    const std::u16string wide = StringUtl::TranslateString(text);
    return StringUtl::ToInt(StringUtl::TranslateString(wide.substr(0, kLettersRead)));
}

}  // namespace

CBunkerDlg::CBunkerDlg(Parts parts) : p_(std::move(parts)), boxes_(p_.view) {}

void CBunkerDlg::Open(const BunkerFigures& figures, bool editable) {
    current_ = figures;
    saved_ = figures;
    p_.view.ShowFigures(current_);
    SetState(false, editable);
    p_.view.MoveTo(BesideTree(p_.treePlace()));
    p_.view.Show();
}

void CBunkerDlg::SetState(bool dirty, bool editable) {
    dirty_ = dirty;
    p_.view.ShowState(dirty, editable);
    ShowTitle();
}

void CBunkerDlg::ShowTitle() {
    const std::string name = p_.voyageName();
    std::string title;
    LoadText(title, static_cast<int>(TextIds::IDC_BK_T_TITLE), kTitle);
    p_.view.SetCaption(name.empty() ? title : title + " - " + name, dirty_);
}

void CBunkerDlg::OnVoyageSet() {
    ShowTitle();
}

void CBunkerDlg::OnTyped(std::size_t field, const std::string& text) {
    if (!Take(field, text)) {
        Refuse();
    }
}

bool CBunkerDlg::Take(std::size_t field, const std::string& text) {
    const int value = NumberOf(text);
    if (value == current_.at(field)) {
        return true;
    }
    // A negative number is a huge one here, and is refused like one.
    if (static_cast<unsigned>(value) > kMost) {
        return false;
    }
    current_.at(field) = value;
    SetState(true, true);
    return true;
}

void CBunkerDlg::Refuse() {
    boxes_.Notice(TextIds::IDS_BK_ERR_INPUT);
    p_.view.ShowFigures(current_);
}

void CBunkerDlg::Save() {
    SetState(false, true);
    saved_ = current_;
    // There is no box for it, and the figures stay as they are typed.
    const bool failed = p_.save(saved_) != 0;
    TellInStatusLine(failed ? Text(TextIds::IDS_VIEW_FIGURESNOTSAVED, {p_.voyageName()}) : std::string());
}

void CBunkerDlg::OnSave() {
    if (IsDirty()) {
        Save();
    }
    // What was read of a text like "12 kg" is what stands there now.
    p_.view.ShowFigures(current_);
    SetState(false, true);
}

void CBunkerDlg::OnUndo() {
    current_ = saved_;
    p_.view.ShowFigures(current_);
    SetState(false, true);
}

void CBunkerDlg::OnClose() {
    if (IsDirty() &&
        boxes_.Question(TextIds::IDS_BK_TIP_SAVE, Text(TextIds::IDS_VIEW_LOSTFIGURES, {p_.voyageName()}))) {
        Save();
    }
    SetState(false, true);
    p_.view.Hide();
}

void CBunkerDlg::ApplyLanguage() {
    p_.view.ApplyTexts();
    // The mark is set anew only for figures that differ.
    dirty_ = IsDirty();
    ShowTitle();
}

void CBunkerDlg::OnLogout() {
    p_.view.Hide();
    current_ = saved_ = {};
    SetState(false, false);
}

}  // namespace Tarvik::Seaplan
