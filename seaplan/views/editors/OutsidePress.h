// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>

namespace Tarvik::Seaplan {

/// Reports presses of the mouse anywhere in the program but in the widgets that count as inside. The press
/// goes on to where it fell.
class OutsidePress final : public QObject {
  public:
    /// `inside` is asked of the widget that was pressed; `pressed` hears of every press elsewhere that is
    /// made with one of `buttons`, `released` of the end of any press, before a click comes of it.
    OutsidePress(QObject* owner, std::function<bool(const QWidget&)> inside, std::function<void()> pressed,
                 std::function<void()> released = {}, Qt::MouseButtons buttons = Qt::AllButtons)
        : QObject(owner),
          inside_(std::move(inside)),
          pressed_(std::move(pressed)),
          released_(std::move(released)),
          buttons_(buttons) {
        qApp->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* widget = qobject_cast<const QWidget*>(watched);
            const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
            if (widget != nullptr && buttons_.testFlag(button) && !inside_(*widget)) {
                pressed_();
            }
        } else if (event->type() == QEvent::MouseButtonRelease && released_) {
            released_();
        }
        return false;
    }

  private:
    std::function<bool(const QWidget&)> inside_;
    std::function<void()> pressed_;
    std::function<void()> released_;
    Qt::MouseButtons buttons_;
};

}  // namespace Tarvik::Seaplan
