// SPDX-License-Identifier: MIT
#include "seaplan/panels/remark/CRemarkPanel.h"

#include <algorithm>
#include <utility>

#include "seaplan/data/TimeText.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/NoteTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kTitle = "Remark of %s";
/// From so many rows on, row 0 may be out of sight.
constexpr int kManyRows = 7;

/// The order of all lists of remarks.
bool oldestFirst = false;

}  // namespace

CRemarkPanel::CRemarkPanel(const Parts& parts)
    : d_(parts.view, parts.mark), corner_(parts.corner), editing_(d_) {
    d_.list.SetReports({[this](int row, const std::string& item) { OnItemClicked(row, item); }, {}});
}

int CRemarkPanel::Open(RemarkOwnerRow row, int type, const std::string& objectid, const std::string& name) {
    if (!editing_.AskSave()) {
        d_.Show();
        return -1;
    }
    Reset();
    if (type != d_.object.type || objectid != d_.object.id || objectid.empty()) {
        d_.loaded = false;
    }
    d_.object = {row, type, objectid, name};
    SetTitle();
    Load();
    d_.view.MoveTo(corner_());
    ShowObject();
    return 0;
}

void CRemarkPanel::Reset() {
    d_.adding = false;
    d_.list.Clear();
    d_.state.newestFirst = !oldestFirst;
    editing_.FillNothing();
}

void CRemarkPanel::Load() {
    if (!d_.loaded) {
        d_.loaded = d_.remarks.LoadRemarks(d_.object.type, d_.object.id);
    }
    d_.AppendRows();
}

void CRemarkPanel::ShowObject() {
    d_.Show();
    d_.view.Show();
    if (d_.list.Count() == 0) {
        New();
    } else {
        Sort();
    }
}

void CRemarkPanel::New() {
    if (!d_.adding) {
        if (!editing_.AskSave()) {
            return d_.Show();
        }
        d_.list.InsertFirst({Text(TextIds::IDS_NEW_REMARK), NowText(kTimeFormat)});
        d_.adding = true;
    }
    d_.Show();
    if (d_.list.Count() >= kManyRows) {
        d_.view.BringRowIntoView(d_.list.Count() - 1);
        d_.view.BringRowIntoView(0);
    }
    editing_.Select(0);
    d_.view.FocusSubject();
}

void CRemarkPanel::OnSort() {
    oldestFirst = !oldestFirst;
    d_.state.newestFirst = !oldestFirst;
    Sort();
}

void CRemarkPanel::Sort() {
    d_.list.SortByTime(oldestFirst);
    d_.Show();
    if (d_.list.Count() > 0) {
        editing_.Select(0);
    }
}

void CRemarkPanel::OnClose() {
    const bool settled = editing_.AskSave();
    d_.Show();
    if (settled) {
        d_.view.Hide();
    }
}

void CRemarkPanel::OnItemClicked(int row, const std::string& item) {
    if (item != RemarkItem::kDelete || !d_.list.Has(row)) {
        return;
    }
    if (d_.list.Row(row).remark != nullptr) {
        Delete(row);
    } else if (d_.adding && row == 0) {
        DropNew();
    }
}

void CRemarkPanel::Delete(int row) {
    const CRemark* remark = d_.list.Row(row).remark;
    if (!d_.ToPerson().Question(TextIds::IDS_DELREMARKTIP, d_.NameOf(remark->subject)) ||
        !d_.remarks.DeleteRemark(remark->type, remark->objectid, remark->seq)) {
        return;
    }
    // Whatever was typed over it went with it, by the person's word.
    if (row == d_.list.Current()) {
        editing_.Drop();
    }
    d_.list.Remove(row);
    if (d_.remarks.Count() == 0) {
        d_.Mark(false);
    }
    editing_.Select(std::min(row, d_.list.Count() - 1));
}

void CRemarkPanel::DropNew() {
    if (editing_.IsDirty() && d_.list.Current() == 0) {
        if (!editing_.IsDenied()) {
            editing_.Save();
            return d_.Show();
        }
        editing_.Drop();
    }
    d_.list.Remove(0);
    d_.adding = false;
    editing_.Select(d_.list.Count() == 0 ? -1 : 0);
}

void CRemarkPanel::SetTitle() {
    std::string format;
    LoadText(format, static_cast<int>(TextIds::IDS_RMK_TITLE), kTitle);
    d_.view.ShowTitle(MakeRemarkTitle(format.empty() ? kTitle : format, d_.object.name,
                                      [this](const std::string& text) { return d_.view.TitleWidth(text); }));
}

void CRemarkPanel::ApplyLanguage() {
    SetTitle();
    d_.view.ApplyTexts();
    d_.Show();
}

void CRemarkPanel::OnLogout() {
    d_.view.Hide();
    Reset();
    d_.remarks.Clear();
    d_.object = {};
    d_.loaded = false;
    d_.Show();
}

void CRemarkPanel::OnTimeZone(const std::string& /*zone*/) {
    d_.loaded = false;
    // What is being written stays as it is; the times are right at the next opening.
    if (!d_.view.IsVisible() || editing_.IsDirty() || d_.adding) {
        return;
    }
    RemarkList fresh;
    if (!fresh.LoadRemarks(d_.object.type, d_.object.id)) {
        return;
    }
    Reset();
    d_.remarks = std::move(fresh);
    d_.loaded = true;
    d_.AppendRows();
    Sort();
}

}  // namespace Tarvik::Seaplan
