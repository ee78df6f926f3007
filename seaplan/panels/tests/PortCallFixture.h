// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PortCallParts.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/panels/tests/RecordingPortCallView.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

/// The port call panel on the real server, with a new voyage and one that is saved with three port calls. The
/// present time is 2024-03-01 00:00:00.
class PortCallFixture : public ::testing::Test {
  protected:
    KeyTexts texts;
    PanelDesk desk;
    TestSupport::ManualClock& clock = desk.clock;
    TestSupport::RecordingMsgSink& messages = desk.messages;
    VoyageStore& store = desk.store;
    static constexpr Rect kTree{10, 45, 310, 430};  ///< of the screen
    RecordingPortCallView view;
    std::vector<std::string> saved;
    std::string fresh;  ///< id of the new voyage
    std::string kept;   ///< id of the saved one
    PortDirectory ports = Ports();
    CPosBookDlg* positionBook = nullptr;      ///< where a test has one
    std::function<void()> keepTable = [] {};  ///< what the panel asks to keep a distance table
    CPortCallPanelDlg panel{{desk.catalog,
                             desk.voyages,
                             ports,
                             view,
                             [] { return kTree; },
                             [this] { return positionBook; },
                             {},
                             [this] { keepTable(); }}};

    std::string statusWord;  ///< what the panels said last in the client's status line
    Interface::Binding statusWords = Interface::Subscribe(
        Interface::Bus::TellStatus, [this](const Interface::StatusWord& word) { statusWord = word.text; });

    PortCallFixture() {
        desk.AddCategory("Plans");
        fresh = desk.AddVoyage("Plans", {.name = "New"});
        kept = desk.AddVoyage("Plans", {.name = "Saved", .calls = ThreeCalls()});
        desk.Load();
        desk.ForgetRecords();
        panel.SetSavedListener([this](const std::string& vi) { saved.push_back(vi); });
    }

    static PortDirectory Ports() {
        const std::string rotterdam = DeskPortId("ROTTERDAM");
        const std::string europoort = DeskPortId("EUROPOORT");
        return {{"ROTTERDAM", "ROUEN", "HAMBURG", "GDANSK", "EUROPOORT"},
                {{"鹿特丹", "ROTTERDAM"}, {"DEHAM", "HAMBURG"}, {"GDINGEN", "GDANSK"}},
                {{rotterdam + "-" + europoort, ""}, {europoort + "-" + rotterdam, ""}}};
    }
    /// Rotterdam, Hamburg, Gdansk from 2024-03-05 08:00:00 with 12 hours in Hamburg; legs of 240 miles.
    static PortCallRows ThreeCalls() {
        PortCallRows rows = PanelDesk::Calls(5, 3);
        rows[1].apt = 12;
        return rows;
    }
    /// The saved voyage is another one on the server; what was loaded of it is forgotten.
    void SaveOther(const std::function<void(PortCallRows&)>& change) {
        PortCallRows calls = ThreeCalls();
        change(calls);
        desk.SaveCalls(kept, calls);
        store.voyages[kept].portCalls.clear();
        store.voyages[kept].positionBook.points.clear();
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
    /// A weather factor that leaves no speed, as an older plan may have it: the schedule fails.
    void ShowFullWeather(int row) {
        PortCallSheet sheet = panel.Sheet();
        sheet.table.SetCell(row, ColWeather, "100%");
        panel.PutBack(sheet);
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
    /// On the chart: the passage by the other point from Rotterdam to Hamburg.
    static void ChooseOtherPassage() {
        const std::string usual = "118";
        const std::string other = "105";
        Interface::Raise(Interface::Bus::ClickVoyageType, &usual);
        Interface::Raise(Interface::Bus::ClickRoutePointType, &other);
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
    /// The text of the last message, without the line below it.
    std::string LastMessage() const { return Line(messages.messages.size(), true); }
    /// The line below it: a cause, or what would be lost.
    std::string LastDetail() const { return Line(messages.messages.size(), false); }
    /// A line of the message told as this one, counted from 1; empty before the first.
    std::string Line(std::size_t number, bool first) const {
        if (number == 0) {
            return "";
        }
        const std::string& text = messages.messages[number - 1].text;
        const std::size_t end = text.find('\n');
        return first ? text.substr(0, end) : end == std::string::npos ? "" : text.substr(end + 1);
    }
    /// Hours from a time of the table to another one.
    static double HoursTo(const std::string& from, const std::string& to) {
        return Util::DateTimeUtl::Diff(*Util::DateTimeUtl::Parse(to), *Util::DateTimeUtl::Parse(from));
    }
    /// How often a service of the chart was called.
    std::size_t Drawn(const char* service) const { return desk.Drawn(service); }
    long Calculations() const { return desk.Count(Ask::kRoute); }
    long Saves() const { return desk.Count(Ask::kSavePortCalls); }
    const PortCallRows& SavedRows(const std::string& vi) { return store.voyages[vi].portCalls; }
};

}  // namespace Tarvik::Seaplan
