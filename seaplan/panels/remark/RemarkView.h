// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/remark/ClistCtrlViewEx.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

/// A title and the size of its control in pixels.
struct RemarkTitle {
    std::string text;
    int width = 0;
    int height = 0;
    bool operator==(const RemarkTitle&) const = default;
};

/// The title of the remarks of an object: its name at the "%s" of `format`, cut to less than 200 bytes. A
/// title wider than 400 pixels loses its end for "...", unless it has hardly any letters; then it stays
/// whole. `widthOf` measures a text in pixels.
RemarkTitle MakeRemarkTitle(const std::string& format, const std::string& name,
                            const std::function<int(const std::string&)>& widthOf);

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
