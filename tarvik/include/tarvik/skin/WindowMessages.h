// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QString>
#include <cstring>
#include <string>
#include <utility>

/// What windows of client and plug-ins tell each other beside the bus: events whose numbers and contents are
/// part of the contract, sent to a window that is known by its handle.
namespace Tarvik::Skin {

/// The numbers, as the type of the event.
namespace WindowMessage {
inline constexpr int kHelp = 1030;         ///< to the client's main window: HelpRequestEvent
inline constexpr int kMatchMoved = 1031;   ///< to the editor of a match query: MatchMovedEvent
inline constexpr int kMatchChosen = 1032;  ///< to the editor of a match query: MatchChosenEvent
/// To the client's main window, posted when the position book has closed; carries nothing.
inline constexpr int kPositionBookClosed = 1126;
}  // namespace WindowMessage

/// Asks the client's main window for a help topic. The receiver copies what it needs.
class HelpRequestEvent : public QEvent {
  public:
    /// What the client reads.
    struct Block {
        char topic[512] = {};  ///< key of the topic, ended by a NUL
        int width = 0;         ///< of the help window, in pixels
        int height = 0;        ///< the same
    };

    /// A topic of more than 511 bytes is cut.
    HelpRequestEvent(const std::string& topic, int width, int height)
        : QEvent(static_cast<Type>(WindowMessage::kHelp)) {
        std::strncpy(block.topic, topic.c_str(), sizeof block.topic - 1);
        block.width = width;
        block.height = height;
    }

    Block block;  ///< what is asked for
};

/// Sends the request and returns when it has been answered; without a main view nothing happens.
inline void SendHelpRequest(QObject* mainView, const std::string& topic, int width, int height) {
    if (mainView == nullptr) {
        return;
    }
    HelpRequestEvent event(topic, width, height);
    QCoreApplication::sendEvent(mainView, &event);
}

/// A match window has moved to a port; it tells the window that its query named as the editor.
class MatchMovedEvent : public QEvent {
  public:
    /// `movedTo` is the port's name.
    explicit MatchMovedEvent(QString movedTo)
        : QEvent(static_cast<Type>(WindowMessage::kMatchMoved)), name(std::move(movedTo)) {}

    QString name;  ///< the port's name
};

/// The name last moved to is the person's choice.
class MatchChosenEvent : public QEvent {
  public:
    MatchChosenEvent() : QEvent(static_cast<Type>(WindowMessage::kMatchChosen)) {}
};

}  // namespace Tarvik::Skin
