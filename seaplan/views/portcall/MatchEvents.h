// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QString>

namespace Tarvik::Seaplan {

/// What a match window tells the window that its query named as the editor. The numbers are part of the
/// contract with the plug-in that offers the match window.
class MatchMovedEvent : public QEvent {
  public:
    static constexpr int kType = 1031;

    explicit MatchMovedEvent(QString movedTo) : QEvent(static_cast<Type>(kType)), name(std::move(movedTo)) {}

    QString name;  ///< the port's name
};

/// The name last moved to is the choice.
class MatchChosenEvent : public QEvent {
  public:
    static constexpr int kType = 1032;

    MatchChosenEvent() : QEvent(static_cast<Type>(kType)) {}
};

}  // namespace Tarvik::Seaplan
