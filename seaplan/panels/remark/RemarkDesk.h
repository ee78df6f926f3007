// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/remark/ClistCtrlViewEx.h"
#include "seaplan/panels/remark/RemarkView.h"
#include "seaplan/panels/texts/NoteTexts.h"
#include "seaplan/panels/window/Boxes.h"
#include "seaplan/protocol/RemarkList.h"

namespace Tarvik::Seaplan {

/// Handle of the row of the owner that stands for an object, 0 for none.
using RemarkOwnerRow = int;

/// What the remarks on show belong to.
struct RemarkedObject {
    RemarkOwnerRow row = 0;
    int type = -1;  ///< RemarkObject
    std::string id{};
    std::string name{};
};

/// What the parts of the remark panel share.
struct RemarkDesk {
    /// Hears that the object of a row has its first remark, or lost its last; empty where nobody shows it.
    using MarkReport = std::function<void(RemarkOwnerRow, bool)>;

    RemarkDesk(RemarkView& window, MarkReport report)
        : view(window), boxes(window), mark(std::move(report)) {}

    RemarkView& view;
    Boxes boxes;
    MarkReport mark;
    RemarkList remarks;
    ClistCtrlViewEx list;
    RemarkedObject object;
    RemarkState state;
    bool loaded = false;  ///< the remarks in memory are the object's
    bool adding = false;  ///< row 0 is a new remark that is not sent

    /// A row for each remark in memory, behind what the list has.
    void AppendRows() {
        for (std::size_t i = 0; i < remarks.Count(); ++i) {
            const CRemark* remark = remarks.At(i);
            list.Append({remark->subject, remark->udate, false, remark});
        }
    }
    /// Brings the window up to date.
    void Show() {
        state.canAdd = !adding;
        view.ShowRows(list.Rows(), list.Current());
        view.ShowState(state);
    }
    /// Boxes to the person, over a window that is up to date.
    Boxes& ToPerson() {
        Show();
        return boxes;
    }
    /// A remark as questions tell it.
    std::string NameOf(const std::string& subject) const {
        return Text(TextIds::IDS_VIEW_LOSTREMARK, {subject, object.name});
    }
    /// The object has a remark, or none any more.
    void Mark(bool on) const {
        if (mark) {
            mark(object.row, on);
        }
    }
};

}  // namespace Tarvik::Seaplan
