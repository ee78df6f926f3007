// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/remark/RemarkDesk.h"

namespace Tarvik::Seaplan {

/// The remark whose text stands in the two fields: filling them, what is typed, and how it is saved. A text
/// that could not be saved stays, and stays unsaved, so that it is asked about again before it goes.
class RemarkEditing {
  public:
    explicit RemarkEditing(RemarkDesk& desk) : d_(desk) {}

    /// Something was typed that is not saved.
    bool IsDirty() const { return dirty_; }
    /// Asks what becomes of a changed text: no drops the change, anything else saves it. False when there is
    /// one still, as the save failed.
    bool AskSave();
    /// The question itself: whether the person gives the change up.
    bool IsDenied();
    /// The save button.
    void SaveClick();
    /// Sends the text: of the new remark in row 0, or of a changed one.
    void Save();
    /// The change does not count any more; the fields stay as they are.
    void Drop();

    void OnSubjectTyped(const std::string& text);
    void OnBodyTyped(const std::string& text);
    /// A key in the subject: Enter leads on to the text. False when it means nothing here.
    bool OnSubjectKey(Key key);
    /// Another row is to be edited. The one on show stays where its text was to be saved and could not be.
    void Select(int row);
    /// No row is edited: the fields are empty and off.
    void FillNothing();

  private:
    void Fill(int row);
    void Typed();
    bool IsNew() const { return d_.adding && d_.list.Current() == 0; }
    const CRemark* SendNew();
    const CRemark* SendChange();
    bool IsTooLong(const std::string& text, int mostWidth, const char* fallback);
    bool LoadFirst();
    void Tell(TextId id, const char* fallback, const std::string& detail = {});
    std::string WhyNotSent(int seq) const;

    RemarkDesk& d_;
    std::string subject_;
    std::string body_;
    bool dirty_ = false;
};

}  // namespace Tarvik::Seaplan
