// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

/// What the remark panel's window was told.
class RecordingRemarkView final : public RecordingPanelWindow<RemarkView> {
  public:
    std::vector<RemarkRow> rows;
    int current = -1;
    RemarkState state;
    std::string subject;
    std::string body;
    RemarkTitle title;
    int letterWidth = 8;
    std::vector<int> broughtIntoView;
    int focusedSubject = 0;
    int focusedBody = 0;
    int raised = 0;

    void Show() override {
        ++raised;
        RecordingPanelWindow::Show();
    }
    void ShowRows(const std::vector<RemarkRow>& shown, int selected) override {
        rows = shown;
        current = selected;
    }
    void ShowState(const RemarkState& shown) override { state = shown; }
    void ShowTexts(const std::string& shownSubject, const std::string& shownBody) override {
        subject = shownSubject;
        body = shownBody;
    }
    int TitleWidth(const std::string& text) const override {
        return letterWidth * static_cast<int>(Util::StringUtl::TranslateString(text).size());
    }
    void ShowTitle(const RemarkTitle& shown) override { title = shown; }
    void BringRowIntoView(int row) override { broughtIntoView.push_back(row); }
    void FocusSubject() override { ++focusedSubject; }
    void FocusBody() override { ++focusedBody; }
    /// Titles of the rows.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const RemarkRow& row : rows) {
            names.push_back(row.name);
        }
        return names;
    }
};

/// The remark panel on the real server, with a voyage "12" that has no remarks at first. The present time is
/// 2024-03-01 00:00:00.
class RemarkFixture : public ::testing::Test {
  protected:
    using Answer = Interface::SysMsgHandleRes;

    KeyTexts texts;
    PanelDesk desk;
    TestSupport::RecordingMsgSink& messages = desk.messages;
    RecordingRemarkView view;
    std::vector<std::pair<int, bool>> marks;  ///< row and state of every change, in order
    std::string ci = desk.AddCategory("Full");
    std::string vi = desk.AddVoyage("Full", {.name = "North"});
    CRemarkPanel panel{{view,
                        [] {
                            return Point{460, 240};
                        },
                        [this](int row, bool on) { marks.emplace_back(row, on); }}};

    ~RemarkFixture() override {
        // The order is one for all panels, and so for all tests.
        if (!view.state.newestFirst) {
            panel.OnSort();
        }
    }
    int Open(int row = 7) { return panel.Open(row, VoyageRemark, vi, "North"); }
    void TypeSubject(const std::string& text) {
        view.subject = text;
        panel.Editing().OnSubjectTyped(text);
    }
    void TypeBody(const std::string& text) {
        view.body = text;
        panel.Editing().OnBodyTyped(text);
    }
    void Select(int row) { panel.Editing().Select(row); }
    void Save() { panel.Editing().SaveClick(); }
    void ClickDelete(int row) {
        panel.List().OnItemEvent(ClistCtrlViewEx::FirstEvent, ClistCtrlViewEx::PositionOf(row),
                                 "flt.remark.del");
    }
    /// Adds a remark through the panel and saves it.
    void Add(const std::string& subject, const std::string& body = "Body") {
        panel.New();
        TypeSubject(subject);
        TypeBody(body);
        Save();
        desk.clock.AdvanceSeconds(60);
    }
    /// Opens the voyage with these remarks, each a minute younger than the one before, saved and in memory.
    void OpenWith(std::initializer_list<const char*> subjects) {
        Open();
        for (const char* subject : subjects) {
            Add(subject, std::string("About ") + subject);
        }
        Open();
        marks.clear();
        messages.messages.clear();
        desk.ForgetRecords();
    }
    /// The text of the last message, without the line below it.
    std::string LastMessage() const { return Line(true); }
    /// The line below it.
    std::string LastDetail() const { return Line(false); }
    std::string Line(bool first) const {
        const std::string text = messages.messages.empty() ? "" : messages.messages.back().text;
        const std::size_t end = text.find('\n');
        return first ? text.substr(0, end) : end == std::string::npos ? "" : text.substr(end + 1);
    }
    /// What the server has of the voyage, "subject|body".
    std::vector<std::string> Stored() {
        RemarkList list;
        EXPECT_TRUE(list.LoadRemarks(VoyageRemark, vi));
        std::vector<std::string> found;
        for (std::size_t i = 0; i < list.Count(); ++i) {
            found.push_back(list.At(i)->subject + "|" + list.At(i)->body);
        }
        return found;
    }
    /// `count` Chinese letters.
    static std::string Letters(int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += "船";
        }
        return text;
    }
};

}  // namespace Tarvik::Seaplan
