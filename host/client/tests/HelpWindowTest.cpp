// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "host/client/services/LanguageFiles.h"
#include "host/client/shell/GuideView.h"
#include "host/client/shell/HelpWindow.h"
#include "host/client/shell/Theme.h"

namespace Tarvik::Client {

namespace {

/// The window with the pages as they are shipped, in English.
class HelpWindowTest : public testing::Test {
  protected:
    HelpWindowTest() {
        texts_.Load(CLIENT_LANGUAGES, kReferenceLanguage);
        help_.Load(kReferenceLanguage);
        help_.ShowTopic("GENERAL");
    }
    QLineEdit& Search() { return *help_.findChild<QLineEdit*>("helpSearch"); }
    QListWidget& Pages() { return *help_.findChild<QListWidget*>("helpPages"); }
    GuideView& Text() { return *help_.findChild<GuideView*>("helpText"); }
    QString Found() { return help_.findChild<QLabel*>("helpFound")->text(); }
    /// The titles of the pages in the list.
    QStringList Titles() {
        QStringList titles;
        for (int i = 0; i < Pages().count(); ++i) {
            if (!Pages().item(i)->isHidden()) {
                titles.append(Pages().item(i)->text());
            }
        }
        return titles;
    }
    /// The heading that was gone to; empty where it is out of sight.
    QString Heading() {
        const bool inSight = Text().viewport()->rect().contains(Text().cursorRect().center());
        return inSight ? Text().textCursor().block().text() : QString();
    }

    LanguageFiles texts_;
    HelpWindow help_{nullptr,
                     [this](const char* key) { return QString::fromStdString(texts_.Text("Client", key)); },
                     CLIENT_GUIDE};
};

}  // namespace

TEST_F(HelpWindowTest, ListsAllPagesAndShowsTheFirst) {
    EXPECT_EQ(Titles().size(), 10);
    EXPECT_EQ(Titles().first(), "First voyage");
    EXPECT_TRUE(Text().toPlainText().startsWith("First voyage"));
}

TEST_F(HelpWindowTest, ATopicIsShownAtItsHeading) {
    help_.ShowTopic("func033");
    EXPECT_EQ(Heading(), "The voyages");
    help_.ShowTopic("func035");
    EXPECT_EQ(Heading(), "Position book");
    help_.ShowTopic("func036");
    EXPECT_EQ(Pages().currentItem()->text(), "Vessels");
    EXPECT_EQ(Heading(), "Consumption");
}

TEST_F(HelpWindowTest, TheFirstTopicOfANewWindowIsShownAtItsHeadingToo) {
    HelpWindow fresh(
        nullptr, [](const char* key) { return QString(key); }, CLIENT_GUIDE);
    fresh.Load(kReferenceLanguage);
    fresh.ShowTopic("func033");
    auto& text = *fresh.findChild<GuideView*>("helpText");
    EXPECT_EQ(text.textCursor().block().text(), "The voyages");
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(text.viewport()->rect().contains(text.cursorRect().center()));
    EXPECT_LT(text.cursorRect().top(), text.viewport()->height() / 4);
}

TEST_F(HelpWindowTest, APageHasTheKeysOfItsPanel) {
    help_.ShowTopic("func035");
    EXPECT_TRUE(Text().toPlainText().contains("Show or hide the waypoints behind the row"));
}

TEST_F(HelpWindowTest, TheSearchLeavesPagesWithAllWordsAndCountsThem) {
    Search().setText("csv fleet");
    EXPECT_EQ(Titles().size(), 2) << Titles().join(", ").toStdString();
    EXPECT_TRUE(Titles().first().startsWith("Vessels ("));
    EXPECT_EQ(Pages().currentItem()->text(), Titles().first());
    Search().setText("GREAT CIRCLE");
    EXPECT_FALSE(Titles().isEmpty()) << "capitals do not count";
    Search().clear();
    EXPECT_EQ(Titles().size(), 10);
    EXPECT_TRUE(Text().extraSelections().isEmpty());
}

TEST_F(HelpWindowTest, WhatIsFoundNowhereIsSaidSoAndTheTextStays) {
    const QString before = Text().toPlainText();
    Search().setText("no such thing at all");
    EXPECT_TRUE(Titles().isEmpty());
    EXPECT_EQ(Found(), "Nothing found");
    EXPECT_EQ(Text().toPlainText(), before);
    EXPECT_TRUE(Text().extraSelections().isEmpty());
    QTest::keyClick(&Search(), Qt::Key_Return);
    EXPECT_EQ(Found(), "Nothing found");
}

TEST_F(HelpWindowTest, HitsAreMarkedAndTheFirstStandsOut) {
    help_.ShowTopic("func035");
    Search().setText("waypoint");
    const auto marks = Text().extraSelections();
    ASSERT_GT(marks.size(), 2);
    for (const auto& mark : marks) {
        EXPECT_EQ(mark.cursor.selectedText().toLower(), "waypoint");
    }
    EXPECT_NE(marks[0].format.background(), marks[1].format.background());
}

TEST_F(HelpWindowTest, EnterLeadsThroughTheHitsOfAllPagesAndBack) {
    Search().setText("csv");
    ASSERT_EQ(Titles().size(), 2);
    const QString first = Pages().currentItem()->text();
    const auto hits = Text().Hits();
    for (std::size_t i = 0; i < hits; ++i) {
        EXPECT_EQ(Pages().currentItem()->text(), first);
        EXPECT_EQ(Found(), QString("%1 of %2 on this page").arg(i + 1).arg(hits));
        QTest::keyClick(&Search(), Qt::Key_Return);
    }
    EXPECT_NE(Pages().currentItem()->text(), first);
    QTest::keyClick(&Search(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Pages().currentItem()->text(), first);
    EXPECT_EQ(Found(), QString("%1 of %1 on this page").arg(hits));
}

TEST_F(HelpWindowTest, ALinkLeadsToItsPageAndHeading) {
    help_.ShowTopic("func035");
    emit Text().anchorClicked(QUrl("10-keys.md#keys-func035"));
    EXPECT_EQ(Pages().currentItem()->text(), "Keys");
    EXPECT_EQ(Heading(), "Position book");
    emit Text().anchorClicked(QUrl("99-none.md"));
    EXPECT_EQ(Pages().currentItem()->text(), "Keys");
}

TEST_F(HelpWindowTest, ThePageIsChosenInTheListAndMovedFromTheSearch) {
    Pages().setCurrentRow(9);
    EXPECT_TRUE(Text().toPlainText().startsWith("Keys"));
    EXPECT_EQ(Text().verticalScrollBar()->value(), 0);
    QTest::keyClick(&Search(), Qt::Key_PageDown);
    EXPECT_GT(Text().verticalScrollBar()->value(), 0);
}

TEST_F(HelpWindowTest, PicturesAreReadAndNoWiderThanThePage) {
    const QUrl name("../pictures/en-US/first-voyage.png");
    const auto picture = Text().loadResource(QTextDocument::ImageResource, name).value<QImage>();
    ASSERT_FALSE(picture.isNull());
    EXPECT_LE(picture.deviceIndependentSize().width(), Text().viewport()->width());
    EXPECT_GT(picture.width(), 300);
    EXPECT_FALSE(Text().loadResource(QTextDocument::ImageResource, QUrl("../pictures/none.png")).isValid());
    EXPECT_FALSE(Text().loadResource(QTextDocument::ImageResource, QUrl("http://a.example/b.png")).isValid());
}

TEST_F(HelpWindowTest, AllControlsHaveNamesAndAreReachedByTab) {
    for (const char* name : {"helpSearch", "helpPages", "helpText"}) {
        auto* control = help_.findChild<QWidget*>(name);
        EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
        EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << name;
    }
    EXPECT_EQ(help_.findChild<QLineEdit*>("helpSearch")->nextInFocusChain()->objectName().left(4), "help");
}

TEST_F(HelpWindowTest, LinksAreLegibleInEachTheme) {
    for (const Skin::Theme theme : Skin::kThemes) {
        ApplyTheme(theme);
        help_.ShowTopic("GENERAL");
        for (QTextBlock block = Text().document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextCharFormat format = piece.fragment().charFormat();
                if (format.isAnchor()) {
                    EXPECT_EQ(format.foreground().color().name(),
                              QGuiApplication::palette().color(QPalette::Link).name());
                }
            }
        }
    }
    ApplyTheme(Skin::Theme::Light);
}

}  // namespace Tarvik::Client
