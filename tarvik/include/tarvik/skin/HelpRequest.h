// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <cstring>
#include <string>

namespace Tarvik::Seaplan {

/// Asks the host's main window for a help topic; the event's number is part of the contract with the host.
class HelpRequestEvent : public QEvent {
  public:
    static constexpr int kType = 1030;

    /// What the host reads: the topic and the size of the help window in pixels.
    struct Block {
        char topic[512] = {};
        int width = 0;
        int height = 0;
    };

    HelpRequestEvent(const std::string& topic, int width, int height) : QEvent(static_cast<Type>(kType)) {
        std::strncpy(block.topic, topic.c_str(), sizeof block.topic - 1);
        block.width = width;
        block.height = height;
    }

    Block block;
};

inline void SendHelpRequest(QObject* mainView, const std::string& topic, int width, int height) {
    if (mainView == nullptr) {
        return;
    }
    HelpRequestEvent event(topic, width, height);
    QCoreApplication::sendEvent(mainView, &event);
}

}  // namespace Tarvik::Seaplan
