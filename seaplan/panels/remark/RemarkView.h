// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/remark/ClistCtrlViewEx.h"
#include "seaplan/panels/remark/RemarkTitle.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

/// What can be done around the list.
struct RemarkState {
    bool canAdd = true;
    bool canSave = false;
    bool canEdit = false;
    bool newestFirst = true;  ///< the sort button is checked

    bool operator==(const RemarkState&) const = default;
};

/// The window of the remark panel: the list, the two fields and the buttons. It shows what it is given and
/// reports what the person does.
class RemarkView : public PanelWindow {
  public:
    /// `current` is selected; -1 for none.
    virtual void ShowRows(const std::vector<RemarkRow>& rows, int current) = 0;
    virtual void ShowState(const RemarkState& state) = 0;
    /// Fills both fields, without a report.
    virtual void ShowTexts(const std::string& subject, const std::string& body) = 0;
    virtual int TitleWidth(const std::string& text) const = 0;
    virtual void ShowTitle(const RemarkTitle& title) = 0;
    virtual void BringRowIntoView(int row) = 0;
    /// Puts the keyboard into the field of the subject.
    virtual void FocusSubject() = 0;
    /// Puts it into the field of the text.
    virtual void FocusBody() = 0;
};

}  // namespace Tarvik::Seaplan
