// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/tests/FakeCommands.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/RecordingPortCallView.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

/// The port call panel over fakes, with voyage "10" new and voyage "20" saved with three port calls. The
/// present time is 2024-03-01 00:00:00.
class PortCallFixture : public ::testing::Test {
  protected:
    KeyTexts texts;
    TestSupport::ManualClock clock;
    TestSupport::RecordingMsgSink messages;
    VoyageStore store;
    FakeSchedule schedule{store};
    RecordingPortCallView view;
    std::vector<std::string> saved;
    PortDirectory ports = Ports();
    CPortCallPanelDlg panel{{store, schedule, ports, view}};

    PortCallFixture() {
        for (const char* vi : {"10", "20"}) {
            store.voyages[vi].vi = vi;
        }
        schedule.onServer["20"] = ThreeCalls();
        store.voyages["20"].positionBook.points.resize(3);
        panel.SetSavedListener([this](const std::string& vi) { saved.push_back(vi); });
    }

    static PortDirectory Ports() {
        return {{"ROTTERDAM", "ROUEN", "HAMBURG", "GDANSK", "EUROPOORT"},
                {{"鹿特丹", "ROTTERDAM"}},
                {{"id-ROTTERDAM-id-EUROPOORT", ""}, {"id-EUROPOORT-id-ROTTERDAM", ""}}};
    }
    /// Rotterdam, Hamburg, Gdansk from 2024-03-05 08:00:00 with 12 hours in Hamburg; legs of 240 miles.
    static PortCallRows ThreeCalls() {
        PortCallRows rows(3);
        rows[0].ppn = "ROTTERDAM";
        rows[0].pp = "L";
        rows[1].ppn = "HAMBURG";
        rows[1].apt = 12;
        rows[2].ppn = "GDANSK";
        for (int i : {1, 2}) {
            rows[i].distance = 240;
        }
        PortCallRows out;
        BuildSchedule(Util::_datetime_t(0, 0, 8, 5, 3, 2024), rows, out);
        return out;
    }
    void Open(const std::string& vi) {
        panel.SetVoyage(vi);
        ASSERT_EQ(panel.FillForVoyage(-1), 0);
        panel.ShowBesideTree();
    }
    /// The text in an open editor, by the person's hand.
    void Retype(CellEditor editor, const std::string& text) {
        view.editorTexts[editor] = text;
        panel.Cells().OnTyped(editor, text);
    }
    /// Clicks a cell, types into the editor that opens and presses Enter.
    void Type(int row, int column, const std::string& text) {
        panel.Cells().OnCellClicked(row, column);
        ASSERT_TRUE(view.openEditor.has_value());
        const CellEditor editor = *view.openEditor;
        Retype(editor, text);
        panel.Cells().OnEditorKey(editor, {Key::Enter});
        panel.Cells().CommitEditors();
    }
    void EnterPorts(std::initializer_list<const char*> names) {
        int row = 0;
        for (const char* name : names) {
            Type(row++, ColPort, name);
        }
    }
    void PickTime(int row, int column, const std::string& text) {
        panel.Cells().OnCellClicked(row, column);
        ASSERT_FALSE(view.pickerTime.empty());
        panel.Cells().OnTimeChosen(text);
    }
    std::string Cell(int row, int column) const { return view.table.Cell(row, column); }
    std::vector<std::string> Column(int column) const {
        std::vector<std::string> out;
        out.reserve(view.table.Rows().size());
        for (int row = 0; row < view.table.RowCount(); ++row) {
            out.push_back(Cell(row, column));
        }
        return out;
    }
    std::string LastMessage() const { return messages.messages.empty() ? "" : messages.messages.back().text; }
    long Calls(const std::string& call) const {
        return std::count(schedule.calls.begin(), schedule.calls.end(), call);
    }
};

}  // namespace Tarvik::Seaplan
