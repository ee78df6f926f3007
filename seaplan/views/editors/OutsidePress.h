// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>

namespace Tarvik::Seaplan {

/// Reports presses of the mouse anywhere in the program but in the widgets that count as inside. The press
/// goes on to where it fell.
class OutsidePress final : public QObject {
  public:
    /// `inside` is asked of the widget that was pressed; `pressed` hears of every press elsewhere.
    OutsidePress(QObject* owner, std::function<bool(const QWidget&)> inside, std::function<void()> pressed)
        : QObject(owner), inside_(std::move(inside)), pressed_(std::move(pressed)) {
        qApp->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* widget = qobject_cast<const QWidget*>(watched);
            if (widget != nullptr && !inside_(*widget)) {
                pressed_();
            }
        }
        return false;
    }

  private:
    std::function<bool(const QWidget&)> inside_;
    std::function<void()> pressed_;
};

}  // namespace Tarvik::Seaplan
