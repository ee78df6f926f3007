// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/panels/tree/TreeWidget.h"
#include "seaplan/views/VoyageViews.h"
#include "seaplan/views/preview/FileTexts.h"

namespace Tarvik::Seaplan {

class TreeRows;
class VoyageTreeView;

/// The windows over the real server with the sample voyages, driven as a person does it. A test includes the
/// headers of those that it looks into, so that a change of one compiles few tests anew.
class ViewsFixture : public ::testing::Test {
  protected:
    FileTexts texts{std::string(SEAPLAN_LANG_DIR) + "/seaplan.en-US.json"};
    PanelDesk desk;
    TestSupport::RecordingMsgSink& messages = desk.messages;
    PortDirectory ports;
    VoyageViews views{{desk.store, desk.catalog, desk.voyages, ports, nullptr}};

    ViewsFixture();
    ~ViewsFixture() override;

    void Toggle();
    VoyagePanelWindow& Panel() { return *views.VoyageWindow(); }
    PortCallWindow& PortCalls() { return *views.PortCallsWindow(); }
    VoyageTreeView& Tree();
    TreeRows& Rows();

    TreeRow RowOf(const std::string& text);
    /// Clicks the name in a row.
    void ClickRow(const std::string& text) { ClickPart(text, "name"); }
    /// Clicks a part of a row by its name.
    void ClickPart(const std::string& text, const std::string& name);
    bool Shows(const std::string& text, const std::string& name);
    template <class Widget>
    Widget* Find(QWidget& window, const char* name) {
        return window.findChild<Widget*>(QString::fromLatin1(name));
    }
    void Press(QWidget& window, const char* button);
    /// A press at a point of a widget during which the pointer trembles, as in a hand.
    static void PressAndShake(QWidget& widget, const QPoint& point);
    /// The tree with its first category open and a voyage selected.
    void OpenVoyage(const std::string& name);
    /// The port calls of a voyage.
    void OpenPortCalls(const std::string& name);
};

}  // namespace Tarvik::Seaplan
