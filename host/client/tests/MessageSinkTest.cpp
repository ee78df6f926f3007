// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "host/client/shell/ClientBox.h"
#include "host/client/shell/QtServices.h"
#include "host/client/shell/Theme.h"

namespace Tarvik::Client {

namespace {

using Interface::SysMsgHandleRes;

/// Presses the named button of the box that is open once the loop of the box runs.
void PressWhenShown(const char* button) {
    QTimer::singleShot(0, qApp, [button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), "Sure?");
        auto* found = box->findChild<QAbstractButton*>(button);
        ASSERT_NE(found, nullptr) << button;
        found->click();
    });
}

SysMsgHandleRes Ask(int flags, const char* button) {
    const LanguageFiles texts;
    QtMessageSink sink(nullptr, texts);
    PressWhenShown(button);
    return sink.SyncSendMsg(1, u"Sure?", flags, nullptr, u"");
}

TEST(MessageSink, AnswersWhatThePersonPressed) {
    EXPECT_EQ(Ask(0, "messageOk"), SysMsgHandleRes::None);
    EXPECT_EQ(Ask(1, "messageOk"), SysMsgHandleRes::Ok);
    EXPECT_EQ(Ask(1, "messageCancel"), SysMsgHandleRes::Cancel);
    EXPECT_EQ(Ask(4, "messageYes"), SysMsgHandleRes::Yes);
    EXPECT_EQ(Ask(4, "messageNo"), SysMsgHandleRes::No);
}

TEST(MessageSink, TheWindowThatHadTheKeyboardHasItBehindTheBox) {
    QWidget panel;
    QWidget main;
    main.show();
    panel.show();
    panel.activateWindow();
    QApplication::processEvents();
    ASSERT_TRUE(panel.isActiveWindow());
    const LanguageFiles texts;
    QtMessageSink sink(&main, texts);
    QTimer::singleShot(0, qApp, [&main] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        // As a window manager does when the box goes.
        QObject::connect(box, &QMessageBox::finished, &main, &QWidget::activateWindow);
        box->findChild<QAbstractButton*>("messageOk")->click();
    });
    sink.SyncSendMsg(1, u"Sure?", 0, &panel, u"");
    QApplication::processEvents();
    EXPECT_TRUE(panel.isActiveWindow());
}

TEST(MessageSink, EscapeIsTheCarefulAnswer) {
    LanguageFiles texts;
    QtMessageSink sink(nullptr, texts);
    const auto escape = [&sink] {
        QTimer::singleShot(0, qApp, [] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QApplication::sendEvent(QApplication::activeModalWidget(), &press);
        });
        return sink.SyncSendMsg(1, u"Sure?", 4, nullptr, u"");
    };
    EXPECT_EQ(escape(), SysMsgHandleRes::No);
    ASSERT_TRUE(texts.Merge(
        R"({"Any":{"ASK":"Sure?"},"Buttons":{"ASK.YES":"Save","ASK.NO":"Lose them","ASK.CAREFUL":"yes"}})"));
    EXPECT_EQ(escape(), SysMsgHandleRes::Yes) << "what was typed is not lost by leaving the box";
}

TEST(MessageSink, AnOwnerThatGoesWhileItsBoxIsUpGivesNoAnswer) {
    const LanguageFiles texts;
    QtMessageSink sink(nullptr, texts);
    for (const int flags : {0, 1, 4}) {
        auto* owner = new QWidget;
        const QPointer<QWidget> lives(owner);
        QTimer::singleShot(0, owner, [owner] { delete owner; });
        EXPECT_EQ(sink.SyncSendMsg(1, u"Sure?", flags, owner, u""), SysMsgHandleRes::None);
        EXPECT_TRUE(lives.isNull());
    }
}

/// The words on the button that Enter presses in a box with the text "Sure?".
QString FocusedAnswer(const LanguageFiles& texts, int flags) {
    QtMessageSink sink(nullptr, texts);
    QString words;
    QTimer::singleShot(0, qApp, [&words] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        for (auto* button : box->findChildren<QPushButton*>()) {
            words = button->isDefault() ? button->text() : words;
        }
        box->reject();
    });
    sink.SyncSendMsg(1, u"Sure?", flags, nullptr, u"");
    return words;
}

TEST(MessageSink, TheAnswerThatMayLoseSomethingIsNeverTheDefault) {
    LanguageFiles texts;
    ASSERT_TRUE(texts.Merge(R"({"Client":{"YES":"Yes","NO":"No","OK":"OK","CANCEL":"Cancel"}})"));
    EXPECT_EQ(FocusedAnswer(texts, 4), "No");
    EXPECT_EQ(FocusedAnswer(texts, 1), "Cancel");
    EXPECT_EQ(FocusedAnswer(texts, 0), "OK");
}

TEST(MessageSink, AQuestionsOwnButtonsSayWhatTheyDo) {
    LanguageFiles texts;
    ASSERT_TRUE(
        texts.Merge(R"({"Any":{"ASK":"Sure?"},"Buttons":{"ASK.YES":"Lose them","ASK.NO":"Go back"}})"));
    EXPECT_EQ(FocusedAnswer(texts, 4), "Go back");
    ASSERT_TRUE(texts.Merge(R"({"Buttons":{"ASK.YES":"Save","ASK.NO":"Lose them","ASK.CAREFUL":"yes"}})"));
    EXPECT_EQ(FocusedAnswer(texts, 4), "Save");
}

/// The ground of a box's default button and the most frequent colour of its picture, as a person sees them.
std::pair<QColor, QColor> LookOf(int flags, QWidget* owner) {
    const LanguageFiles texts;
    QtMessageSink sink(nullptr, texts);
    std::pair<QColor, QColor> look;
    QTimer::singleShot(0, qApp, [&look] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        for (auto* button : box->findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                look.first = button->grab().toImage().pixelColor(button->width() / 2, 4);
            }
        }
        const QImage picture = box->iconPixmap().toImage();
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, picture.height() / 2);
            look.second = colour.alpha() == 255 ? colour : look.second;
        }
        box->reject();
    });
    sink.SyncSendMsg(1, u"Sure?", flags, owner, u"");
    return look;
}

TEST(MessageSink, ABoxHasTheLookOfTheClientWhateverItsOwnerHas) {
    QWidget panel;
    for (const Skin::Theme theme : Skin::kThemes) {
        ApplyTheme(theme);
        panel.setStyleSheet(Skin::StyleSheet());
        for (const int flags : {0, 1, 4}) {
            for (QWidget* owner : {static_cast<QWidget*>(nullptr), &panel}) {
                const auto [button, picture] = LookOf(flags, owner);
                EXPECT_EQ(button, Skin::Colour(Skin::Role::Accent)) << Skin::ThemeName(theme) << flags;
                EXPECT_EQ(picture, Skin::Colour(Skin::Role::Accent)) << Skin::ThemeName(theme) << flags;
            }
        }
    }
    ApplyTheme(Skin::Theme::Light);
}

TEST(FaultBox, SpeaksTheLanguageInForceAndHasTheSkinsPicture) {
    LanguageFiles texts;
    ASSERT_TRUE(texts.Merge(R"({"Client":{"OK":"确定","TITLE":"Seaplan"}})"));
    const std::unique_ptr<QMessageBox> box(MakeFaultBox(nullptr, texts, "The disk is <b>full."));
    ASSERT_EQ(box->buttons().size(), 1);
    EXPECT_EQ(box->buttons()[0]->text(), "确定");
    EXPECT_EQ(box->text(), "The disk is <b>full.");
    EXPECT_EQ(box->icon(), QMessageBox::NoIcon);
    EXPECT_FALSE(box->iconPixmap().isNull());
}

TEST(MessageSink, WhatAQuestionIsAboutStandsBelowItsText) {
    const LanguageFiles texts;
    QtMessageSink sink(nullptr, texts);
    QStringList shown;
    QTimer::singleShot(0, qApp, [&shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        shown = {box->text(), box->informativeText()};
        box->reject();
    });
    sink.SyncSendMsg(1, u"Sure?\nVoyage \"A\"\nVoyage \"B\"", 4, nullptr, u"");
    EXPECT_EQ(shown, QStringList({"Sure?", "Voyage \"A\"\nVoyage \"B\""}));
}

TEST(TimerService, CallsAgainAndAgainUntilStoppedByItsOwnCallback) {
    QtTimerService timers;
    QEventLoop loop;
    int calls = 0;
    unsigned id = 0;
    id = timers.Start(0, [&] {
        if (++calls < 3) {
            return;
        }
        timers.Stop(id);
        loop.quit();
    });
    EXPECT_NE(id, 0U);
    loop.exec();
    QApplication::processEvents();
    EXPECT_EQ(calls, 3);
    timers.Stop(id);
}

}  // namespace
}  // namespace Tarvik::Client
