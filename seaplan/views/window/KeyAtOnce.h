// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QShortcutEvent>

namespace Tarvik::Seaplan {

/// Makes a button's key act in the moment that it is pressed. The toolkit shows the button down for a tenth
/// of a second first, and takes what is pressed meanwhile for one press: what is typed behind the key would
/// come before it.
class KeyAtOnce final : public QObject {
  public:
    static constexpr const char* kName = "keyAtOnce";

    /// Belongs to the button from then on.
    explicit KeyAtOnce(QAbstractButton& button) : QObject(&button), button_(button) {
        setObjectName(QString::fromLatin1(kName));
        button.installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
            return QObject::eventFilter(watched, event);
        }
        button_.click();
        return true;
    }

  private:
    QAbstractButton& button_;
};

}  // namespace Tarvik::Seaplan
