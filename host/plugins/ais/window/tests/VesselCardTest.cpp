// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QToolButton>

#include <gtest/gtest.h>

#include "host/plugins/ais/window/VesselCardWindow.h"
#include "testsupport/PluginTexts.h"

namespace Tarvik::Ais {

namespace {

class VesselCardTest : public testing::Test {
  protected:
    /// The text of a row; "-" without one.
    QString Row(const char* key) const {
        const auto* label = card->findChild<QLabel*>(QString("ais") + key);
        return label == nullptr ? QString("-") : label->text();
    }
    static CardFacts Known() {
        CardFacts facts;
        facts.name = "My <b>ship</b>";
        facts.mmsi = 2320001;
        facts.hasFix = true;
        facts.fix = {1709251200, 4.4833, 51.9083, 12.2, 7.5, 8};
        facts.firstPort = "Rotterdam";
        facts.lastPort = "Shanghai";
        return facts;
    }
    TestSupport::PluginTexts texts{AIS_LANGUAGES "/ais.en-US.json"};
    QMainWindow window;
    VesselCardWindow* card = new VesselCardWindow(&window);
};

TEST_F(VesselCardTest, TellsAllThatIsKnown) {
    card->Show(Known());
    EXPECT_TRUE(card->isVisible());
    EXPECT_EQ(Row("NAME"), "My <b>ship</b>") << "as it stands";
    EXPECT_EQ(Row("MMSI"), "002320001") << "with all nine digits";
    EXPECT_EQ(Row("POSITION"), "51° 54.5' N 004° 29.0' E");
    EXPECT_EQ(Row("COURSE"), "007.5°");
    EXPECT_EQ(Row("SPEED"), "12.2 kn");
    EXPECT_EQ(Row("TIME"), "2024-03-01 00:00:00 UTC");
    EXPECT_EQ(Row("FIRST_PORT"), "Rotterdam");
    EXPECT_EQ(Row("LAST_PORT"), "Shanghai");
}

TEST_F(VesselCardTest, WhatIsNotKnownHasNoRow) {
    CardFacts facts;
    facts.mmsi = 123456789;
    card->Show(Known());
    card->Show(facts);
    EXPECT_EQ(Row("NAME"), "-");
    EXPECT_EQ(Row("POSITION"), "Not known");
    EXPECT_EQ(Row("COURSE"), "-");
    EXPECT_EQ(Row("TIME"), "-");
    EXPECT_EQ(Row("FIRST_PORT"), "-");
}

TEST_F(VesselCardTest, WhatIsHeardNextIsToldWhereTheCardStands) {
    CardFacts facts = Known();
    facts.hasFix = false;
    card->Show(facts);
    card->move(40, 50);
    card->Renew(Known());
    EXPECT_EQ(Row("POSITION"), "51° 54.5' N 004° 29.0' E") << "with the rows that it lacked";
    EXPECT_EQ(Row("SPEED"), "12.2 kn");
    EXPECT_EQ(card->pos(), QPoint(40, 50));
    const auto* name = card->findChild<QLabel*>("aisNAME");
    facts = Known();
    facts.fix.latitude = 52;
    facts.fix.time += 60;
    card->Renew(facts);
    EXPECT_EQ(Row("POSITION"), "52° 00.0' N 004° 29.0' E");
    EXPECT_EQ(Row("TIME"), "2024-03-01 00:01:00 UTC");
    EXPECT_EQ(card->findChild<QLabel*>("aisNAME"), name) << "what is marked in it stays marked";
    EXPECT_EQ(card->pos(), QPoint(40, 50));
}

TEST_F(VesselCardTest, StaysWithinTheScreenAndCloses) {
    CardFacts facts = Known();
    facts.cursorX = facts.cursorY = 100'000;
    card->Show(facts);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(screen.contains(card->geometry().topLeft()));
    EXPECT_LE(card->geometry().right(), screen.right());
    card->findChild<QToolButton*>("aisCardClose")->click();
    EXPECT_FALSE(card->isVisible());
}

}  // namespace
}  // namespace Tarvik::Ais
