// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/views/VoyageViews.h"
#include "seaplan/views/preview/FileTexts.h"
#include "seaplan/views/preview/SampleVoyages.h"

namespace Tarvik::Seaplan {

/// Both windows over the real server with the sample voyages, driven as a person does it.
class ViewsFixture : public ::testing::Test {
  protected:
    FileTexts texts{std::string(SEAPLAN_LANG_DIR) + "/seaplan.en-US.json"};
    PanelDesk desk;
    TestSupport::RecordingMsgSink& messages = desk.messages;
    PortDirectory ports = SamplePorts();
    VoyageViews views{{desk.store, desk.catalog, desk.voyages, ports, nullptr}};

    ViewsFixture() { AddSampleVoyages(desk); }
    ~ViewsFixture() override {
        Skin::SetTheme(Skin::Theme::Light);
        qApp->setProperty("tarvik.theme", QVariant());
    }

    void Toggle() {
        const Interface::PanelShow show{3, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
        QApplication::processEvents();
    }
    VoyagePanelWindow& Panel() { return *views.VoyageWindow(); }
    PortCallWindow& PortCalls() { return *views.PortCallsWindow(); }
    VoyageTreeView& Tree() { return Panel().Tree(); }
    TreeRows& Rows() { return Tree().Rows(); }

    TreeRow RowOf(const std::string& text) {
        for (TreeRow row = Rows().GetRootItem(); row != kNoRow; row = Rows().GetNextSiblingItem(row)) {
            if (Rows().GetItemText(row) == text) {
                return row;
            }
            for (TreeRow child = Rows().GetChildItem(row); child != kNoRow;
                 child = Rows().GetNextSiblingItem(child)) {
                if (Rows().GetItemText(child) == text) {
                    return child;
                }
            }
        }
        return kNoRow;
    }
    /// Clicks the name in a row.
    void ClickRow(const std::string& text) { ClickPart(text, "name"); }
    /// Clicks a part of a row by its name.
    void ClickPart(const std::string& text, const std::string& name) {
        for (const SubItem& part : Tree().PartsOf(RowOf(text))) {
            if (part.name != name) {
                continue;
            }
            QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, part.rect.center());
            QApplication::processEvents();
            return;
        }
        FAIL() << text << " shows no " << name;
    }
    bool Shows(const std::string& text, const std::string& name) {
        for (const SubItem& part : Tree().PartsOf(RowOf(text))) {
            if (part.name == name) {
                return true;
            }
        }
        return false;
    }
    template <class Widget>
    Widget* Find(QWidget& window, const char* name) {
        return window.findChild<Widget*>(QString::fromLatin1(name));
    }
    void Press(QWidget& window, const char* button) {
        auto* found = Find<QAbstractButton>(window, button);
        ASSERT_NE(found, nullptr) << button;
        QTest::mouseClick(found, Qt::LeftButton);
        QApplication::processEvents();
    }
    /// The tree with its first category open and a voyage selected.
    void OpenVoyage(const std::string& name) {
        Toggle();
        ClickRow("Container 2024");
        ClickRow(name);
    }
    /// The port calls of a voyage.
    void OpenPortCalls(const std::string& name) {
        OpenVoyage(name);
        ClickPart(name, "Voyage.child.svr4");
    }
};

}  // namespace Tarvik::Seaplan
