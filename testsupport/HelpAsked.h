// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <string>

#include <tarvik/skin/WindowMessages.h>

namespace Tarvik::TestSupport {

/// Keeps the topic of the help that a window asks its main view for, whichever that is.
class HelpAsked : public QObject {
  public:
    HelpAsked() { QCoreApplication::instance()->installEventFilter(this); }
    std::string topic;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == static_cast<QEvent::Type>(Skin::WindowMessage::kHelp)) {
            topic = static_cast<const Skin::HelpRequestEvent*>(event)->block.topic;
        }
        return false;
    }
};

}  // namespace Tarvik::TestSupport
